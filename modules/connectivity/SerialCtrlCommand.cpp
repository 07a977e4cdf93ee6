#include <cstdlib>
#include <iostream>
#include <memory>
#include <string>

#include "framework/ListCommand.h"
#include "framework/Rows.h"
#include "service/ISerialCtrl.h"

namespace android {
namespace dumpbrel {

class SerialCtrlCommand : public ListCommand {
public:
    explicit SerialCtrlCommand(DumpBrel& parent);
    std::string getName() const override { return mName; }
    std::string getSimpleDescription() const override { return "SerialCtrl Module"; }
    Status registerAllOptions() override;

private:
    std::string mName;
    sp<ISerialCtrl> mSerialCtrl;
};

SerialCtrlCommand::SerialCtrlCommand(DumpBrel& parent)
    : ListCommand(parent),
      mName("SerialCtrl"),
      mSerialCtrl(connect(&IBrelManager::getSerialCtrl, "getSerialCtrl() fail\n")) {}

// Three short specs here are whole words: every letter of them is a letter of the option
// string, but only S, s and g find a row, and as none of them is followed by a colon where it
// first stands, they reach their rows with no argument. The words work by their long names.
Status SerialCtrlCommand::registerAllOptions() {
    addHelp();
    add("SetSerialSwitch:", "SetSerialSwitch", kRequired, mSerialCtrl,
        [](ISerialCtrl& serial, const Input& in) {
            if (in.missing()) return USAGE;
            std::vector<std::string> field = in.fields(3);  // device, enable, baud rate
            int device = atoi(field[0].c_str());
            serial.SetSerialSwitch(device, atoi(field[1].c_str()) != 0, atoi(field[2].c_str()));
            std::cout << "Device " << device << ": , Enable: " << field[1]
                      << ", Baudrate: " << field[2] << '\n';
            return OK;
        });
    add("b", "getRS232Baudrate", kNone, mSerialCtrl,
        printResult("RS232 Baudrate: ", &ISerialCtrl::getRS232Baudrate));
    add("p", "getRS232Port", kNone, mSerialCtrl,
        printResult("RS232 port: ", &ISerialCtrl::getRS232Port));
    add("setSerialDeviceId:", "setSerialDeviceId", kRequired, mSerialCtrl,
        [](ISerialCtrl& serial, const Input& in) {
            if (in.missing()) return USAGE;
            std::vector<std::string> field = in.fields(2);  // device, ID
            serial.setSerialDeviceId(atoi(field[0].c_str()), atoi(field[1].c_str()));
            std::cout << "Device " << field[0] << ": , ID: " << field[1] << '\n';
            return OK;
        });
    add("getSerialDeviceId", "getSerialDeviceId", kRequired, mSerialCtrl,
        printAtoiAndResult("Device: ", &ISerialCtrl::getSerialDeviceId, " ID: "));
    return OK;
}

std::unique_ptr<ListCommand> newSerialCtrlCommand(DumpBrel& parent) {
    return std::make_unique<SerialCtrlCommand>(parent);
}

}  // namespace dumpbrel
}  // namespace android
