#include "modules/Modules.h"

namespace android {
namespace dumpbrel {

BacklightCtrlCommand::BacklightCtrlCommand(DumpBrel& parent)
    : ListCommand(parent),
      mName("BacklightCtrl"),
      mBacklightCtrl(connect(&IBrelManager::getBacklightCtrl, "getBacklightCtrl() fail\n")) {}

std::string BacklightCtrlCommand::getSimpleDescription() const {
    return "BacklightCtrl Module";
}

Status BacklightCtrlCommand::registerAllOptions() {
    addHelp();
    return OK;
}

}  // namespace dumpbrel
}  // namespace android
