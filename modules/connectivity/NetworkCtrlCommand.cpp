#include "modules/Modules.h"

namespace android {
namespace dumpbrel {

NetworkCtrlCommand::NetworkCtrlCommand(DumpBrel& parent)
    : ListCommand(parent),
      mName("NetworkCtrl"),
      mNetworkCtrl(connect(&IBrelManager::getNetworkCtrl, "getNetworkCtrl() fail\n")) {}

std::string NetworkCtrlCommand::getSimpleDescription() const {
    return "NetworkCtrl Module";
}

Status NetworkCtrlCommand::registerAllOptions() {
    addHelp();
    return OK;
}

}  // namespace dumpbrel
}  // namespace android
