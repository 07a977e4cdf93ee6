#include "modules/Modules.h"

namespace android {
namespace dumpbrel {

DebugCtrlCommand::DebugCtrlCommand(DumpBrel& parent)
    : ListCommand(parent),
      mName("DebugCtrl"),
      mDebugCtrl(connect(&IBrelManager::getDebugCtrl, "getDebugCtrl() fail\n")) {}

std::string DebugCtrlCommand::getSimpleDescription() const {
    return "DebugCtrl Module";
}

Status DebugCtrlCommand::registerAllOptions() {
    addHelp();
    return OK;
}

}  // namespace dumpbrel
}  // namespace android
