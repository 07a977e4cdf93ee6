#include "modules/Modules.h"

namespace android {
namespace dumpbrel {

PmsCtrlCommand::PmsCtrlCommand(DumpBrel& parent)
    : ListCommand(parent),
      mName("PmsCtrl"),
      mPmsCtrl(connect(&IBrelManager::getPmsCtrl, "getPmsCtrl() fail\n")) {}

std::string PmsCtrlCommand::getSimpleDescription() const {
    return "PmsCtrl Module";
}

Status PmsCtrlCommand::registerAllOptions() {
    addHelp();
    return OK;
}

}  // namespace dumpbrel
}  // namespace android
