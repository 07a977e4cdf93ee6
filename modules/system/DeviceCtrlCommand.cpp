#include "modules/Modules.h"

namespace android {
namespace dumpbrel {

DeviceCtrlCommand::DeviceCtrlCommand(DumpBrel& parent)
    : ListCommand(parent),
      mName("DeviceCtrl"),
      mDeviceCtrl(connect(&IBrelManager::getDeviceCtrl, "getDeviceCtrl() fail\n")) {}

std::string DeviceCtrlCommand::getSimpleDescription() const {
    return "DeviceCtrl Module";
}

Status DeviceCtrlCommand::registerAllOptions() {
    addHelp();
    return OK;
}

}  // namespace dumpbrel
}  // namespace android
