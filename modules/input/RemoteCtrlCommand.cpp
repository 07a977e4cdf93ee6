#include "modules/Modules.h"

namespace android {
namespace dumpbrel {

RemoteCtrlCommand::RemoteCtrlCommand(DumpBrel& parent)
    : ListCommand(parent),
      mName("RemoteCtrl"),
      mRemoteCtrl(connect(&IBrelManager::getRemoteCtrl, "getRemoteCtrl() fail\n")) {}

std::string RemoteCtrlCommand::getSimpleDescription() const {
    return "RemoteCtrl Module";
}

Status RemoteCtrlCommand::registerAllOptions() {
    addHelp();
    return OK;
}

}  // namespace dumpbrel
}  // namespace android
