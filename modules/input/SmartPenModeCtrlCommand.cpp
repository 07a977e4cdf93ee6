#include "modules/Modules.h"

namespace android {
namespace dumpbrel {

SmartPenModeCtrlCommand::SmartPenModeCtrlCommand(DumpBrel& parent)
    : ListCommand(parent),
      mName("SmartPenModeCtrl"),
      mSmartPenModeCtrl(connect(&IBrelManager::getSmartPenModeCtrl, "getSmartPenModeCtrl() fail\n")) {}

std::string SmartPenModeCtrlCommand::getSimpleDescription() const {
    return "SmartPenModeCtrl Module";
}

Status SmartPenModeCtrlCommand::registerAllOptions() {
    addHelp();
    return OK;
}

}  // namespace dumpbrel
}  // namespace android
