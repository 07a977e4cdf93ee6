#include "modules/Modules.h"

namespace android {
namespace dumpbrel {

BluetoothCtrlCommand::BluetoothCtrlCommand(DumpBrel& parent)
    : ListCommand(parent),
      mName("BluetoothCtrl"),
      mBluetoothCtrl(connect(&IBrelManager::getBluetoothCtrl, "getBluetoothCtrl() fail\n")) {}

std::string BluetoothCtrlCommand::getSimpleDescription() const {
    return "BluetoothCtrl Module";
}

Status BluetoothCtrlCommand::registerAllOptions() {
    addHelp();
    return OK;
}

}  // namespace dumpbrel
}  // namespace android
