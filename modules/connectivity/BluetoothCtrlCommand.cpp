#include <memory>
#include <string>

#include "framework/ListCommand.h"
#include "framework/Rows.h"
#include "service/IBluetoothCtrl.h"

namespace android {
namespace dumpbrel {

class BluetoothCtrlCommand : public ListCommand {
public:
    explicit BluetoothCtrlCommand(DumpBrel& parent);
    std::string getName() const override { return mName; }
    std::string getSimpleDescription() const override { return "BluetoothCtrl Module"; }
    Status registerAllOptions() override;

private:
    std::string mName;
    sp<IBluetoothCtrl> mBluetoothCtrl;
};

BluetoothCtrlCommand::BluetoothCtrlCommand(DumpBrel& parent)
    : ListCommand(parent),
      mName("BluetoothCtrl"),
      mBluetoothCtrl(connect(&IBrelManager::getBluetoothCtrl, "getBluetoothCtrl() fail\n")) {}

Status BluetoothCtrlCommand::registerAllOptions() {
    addHelp();
    add("w", "isBleWakeup", kNone, mBluetoothCtrl,
        printResult("isBleWakeup: ", &IBluetoothCtrl::isBleWakeup));
    // The service gives no answer here: the line repeats the argument as typed.
    add("s:", "setBleWakeup", kRequired, mBluetoothCtrl,
        printText("setBleWakeup: ", &IBluetoothCtrl::setBleWakeup));
    return OK;
}

std::unique_ptr<ListCommand> newBluetoothCtrlCommand(DumpBrel& parent) {
    return std::make_unique<BluetoothCtrlCommand>(parent);
}

}  // namespace dumpbrel
}  // namespace android
