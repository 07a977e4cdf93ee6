#include "modules/Modules.h"

namespace android {
namespace dumpbrel {

FwTouchCtrlCommand::FwTouchCtrlCommand(DumpBrel& parent)
    : ListCommand(parent),
      mName("FwTouchCtrl"),
      mFwTouchCtrl(connect(&IBrelManager::getFwTouchCtrl, "getFwTouchCtrl() fail\n")) {}

std::string FwTouchCtrlCommand::getSimpleDescription() const {
    return "FwTouchCtrl Module";
}

Status FwTouchCtrlCommand::registerAllOptions() {
    addHelp();
    return OK;
}

}  // namespace dumpbrel
}  // namespace android
