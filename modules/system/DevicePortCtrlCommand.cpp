#include "modules/Modules.h"

namespace android {
namespace dumpbrel {

DevicePortCtrlCommand::DevicePortCtrlCommand(DumpBrel& parent)
    : ListCommand(parent),
      mName("DevicePortCtrl"),
      mDevicePortCtrl(connect(&IBrelManager::getDevicePortCtrl, "getDevicePortCtrl() fail\n")) {}

std::string DevicePortCtrlCommand::getSimpleDescription() const {
    return "DevicePortCtrl Module";
}

Status DevicePortCtrlCommand::registerAllOptions() {
    addHelp();
    return OK;
}

}  // namespace dumpbrel
}  // namespace android
