#include "modules/Modules.h"

namespace android {
namespace dumpbrel {

SystemCtrlCommand::SystemCtrlCommand(DumpBrel& parent)
    : ListCommand(parent),
      mName("SystemCtrl"),
      mSystemCtrl(connect(&IBrelManager::getSystemCtrl, "getSystemCtrl() fail\n")) {}

std::string SystemCtrlCommand::getSimpleDescription() const {
    return "SystemCtrl Module";
}

Status SystemCtrlCommand::registerAllOptions() {
    addHelp();
    return OK;
}

}  // namespace dumpbrel
}  // namespace android
