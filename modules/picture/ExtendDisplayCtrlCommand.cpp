#include "modules/Modules.h"

namespace android {
namespace dumpbrel {

ExtendDisplayCtrlCommand::ExtendDisplayCtrlCommand(DumpBrel& parent)
    : ListCommand(parent),
      mName("ExtendDisplayCtrl"),
      mExtendDisplayCtrl(connect(&IBrelManager::getExtendDisplayCtrl, "getExtendDisplayCtrl() fail\n")) {}

std::string ExtendDisplayCtrlCommand::getSimpleDescription() const {
    return "ExtendDisplayCtrl Module";
}

Status ExtendDisplayCtrlCommand::registerAllOptions() {
    addHelp();
    return OK;
}

}  // namespace dumpbrel
}  // namespace android
