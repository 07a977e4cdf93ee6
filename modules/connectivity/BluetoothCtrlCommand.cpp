#include <cstdlib>
#include <iostream>

#include "framework/Getters.h"
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
    add("w", "isBleWakeup", kNone, mBluetoothCtrl,
        printResult("isBleWakeup: ", &IBluetoothCtrl::isBleWakeup));
    // The service gives no answer here: the line repeats the argument as typed.
    add("s:", "setBleWakeup", kRequired, mBluetoothCtrl, [](IBluetoothCtrl& bt, const Input& in) {
        bt.setBleWakeup(atoi(in.text) != 0);
        std::cout << "setBleWakeup: " << in.text << "\n";
        return OK;
    });
    return OK;
}

}  // namespace dumpbrel
}  // namespace android
