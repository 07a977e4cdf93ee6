#include <cstdlib>
#include <cstring>
#include <iostream>
#include <memory>
#include <string>
#include <vector>

#include <utils/String8.h>

#include "framework/ListCommand.h"
#include "framework/Rows.h"
#include "service/IDeviceCtrl.h"

namespace android {
namespace dumpbrel {

class DeviceCtrlCommand : public ListCommand {
public:
    explicit DeviceCtrlCommand(DumpBrel& parent);
    std::string getName() const override { return mName; }
    std::string getSimpleDescription() const override { return "DeviceCtrl Module"; }
    Status registerAllOptions() override;

    // The usbsw row: action, target and value as typed.
    void doUsbSwDebug(const std::string& action, const std::string& target,
                      const std::string& value);
    int getUsbswChannelByName(const std::string& name);

private:
    std::string mName;
    sp<IDeviceCtrl> mDeviceCtrl;
};

namespace {

// Channel names that usbsw understands besides plain numbers, searched in this order.
struct UsbswChannel {
    const char* name;
    int channel;
};

const UsbswChannel usbswChannelTable[] = {
        {"vga", 4},     {"hdmi1", 5},   {"hdmi2", 6}, {"hdmi3", 7}, {"pc", 8},
        {"typec1", 14}, {"typec2", 15}, {"dp", 16},   {"init", 23}, {"soc", 24},
};

}  // namespace

DeviceCtrlCommand::DeviceCtrlCommand(DumpBrel& parent)
    : ListCommand(parent),
      mName("DeviceCtrl"),
      mDeviceCtrl(connect(&IBrelManager::getDeviceCtrl, "getDeviceCtrl() fail\n")) {}

int DeviceCtrlCommand::getUsbswChannelByName(const std::string& name) {
    for (const UsbswChannel& row : usbswChannelTable) {
        if (strcmp(name.c_str(), row.name) == 0) return row.channel;
    }
    return -1;
}

void DeviceCtrlCommand::doUsbSwDebug(const std::string& action, const std::string& target,
                                     const std::string& value) {
    int channelID = -1;
    int res = 0;
    std::cout << "usbsw " << action << " " << target << " " << value << "\n";

    if (action == "set") {
        // A value that starts with a digit is a channel number, anything else a channel name.
        unsigned char first = value.empty() ? 0 : static_cast<unsigned char>(value[0]);
        if (first >= '0' && first <= '9')
            channelID = atoi(value.c_str());
        else
            channelID = getUsbswChannelByName(value);

        if (target == "side")
            res = mDeviceCtrl->setUsbswSideChannel(channelID);
        else if (target == "all")
            res = mDeviceCtrl->setUsbswAllChannel(channelID);
        else if (target == "touchin")
            res = mDeviceCtrl->setUsbswTouchinChannel(channelID);
        else if (target == "pip")
            res = mDeviceCtrl->setUsbswPipChannel(channelID);
        std::cout << "set " << target << "channelID= " << channelID << " res= " << res << "\n";
    } else if (action == "get") {
        if (target == "side")
            channelID = mDeviceCtrl->getUsbswSideChannel();
        else if (target == "all")
            channelID = mDeviceCtrl->getUsbswAllChannel();
        else if (target == "touchin")
            channelID = mDeviceCtrl->getUsbswTouchinChannel();
        else if (target == "pip")
            channelID = mDeviceCtrl->getUsbswPipChannel();
        std::cout << "get " << target << "res= " << channelID << "\n";
    }
}

Status DeviceCtrlCommand::registerAllOptions() {
    addHelp();
    add("d", "getDeviceList", kNone, mDeviceCtrl,
        printResult("DeviceList: ", &IDeviceCtrl::getDeviceList));
    add("s", "getSecondDeviceList", kNone, mDeviceCtrl,
        printResult("u4SecondDeviceList: ", &IDeviceCtrl::getSecondDeviceList));
    add("t", "getThirdDeviceList", kNone, mDeviceCtrl,
        printResult("u4ThirdDeviceList: ", &IDeviceCtrl::getThirdDeviceList));
    add("b", "getBoardName", kNone, mDeviceCtrl,
        printResult("s16_boardname: ", &IDeviceCtrl::getBoardName));
    // action,target,value: set or get a USB switch (side, all, touchin, pip).
    add("u:", "usbsw", kRequired, mDeviceCtrl, [this](IDeviceCtrl&, const Input& in) {
        if (in.missing()) return USAGE;
        std::vector<std::string> fields = in.fields(3);
        doUsbSwDebug(fields[0], fields[1], fields[2]);
        return OK;
    });
    takes("set|get,side|all|touchin|pip,<channelID>=vga|hdmi1|hdmi2|hdmi3|pc|typec1|typec2|dp|init|soc");
    // id,state: the line is switched on by "on" only.
    add("p:", "power", kRequired, mDeviceCtrl, [](IDeviceCtrl& device, const Input& in) {
        if (in.missing()) return USAGE;
        std::vector<std::string> fields = in.fields(2);
        device.setDevicePower(atoi(fields[0].c_str()), fields[1] == "on");
        return OK;
    });
    takes("<powerId>,on|off");
    add("G", "getNfcTagMsg", kNone, mDeviceCtrl,
        printResult("result: ", &IDeviceCtrl::getNfcTagMsg));
    add("S:", "setNfcTagMsg", kRequired, mDeviceCtrl, [](IDeviceCtrl& device, const Input& in) {
        if (in.missing()) return USAGE;
        String16 message(in.text);
        int result = device.setNfcTagMsg(message);
        std::cout << "result: " << result << "\n";
        return OK;
    });
    return OK;
}

std::unique_ptr<ListCommand> newDeviceCtrlCommand(DumpBrel& parent) {
    return std::make_unique<DeviceCtrlCommand>(parent);
}

}  // namespace dumpbrel
}  // namespace android
