#include <iostream>
#include <memory>
#include <string>
#include <vector>

#include <utils/String8.h>

#include "framework/ListCommand.h"
#include "service/IDevicePortCtrl.h"

namespace android {
namespace dumpbrel {

class DevicePortCtrlCommand : public ListCommand {
public:
    explicit DevicePortCtrlCommand(DumpBrel& parent);
    std::string getName() const override { return mName; }
    std::string getSimpleDescription() const override { return "DevicePortCtrl Module"; }
    Status registerAllOptions() override;

private:
    std::string mName;
    sp<IDevicePortCtrl> mDevicePortCtrl;
};

namespace {

// The ports that the service knows, one per line behind a tab.
Status listDevicePorts(IDevicePortCtrl& ports, const Input&) {
    std::vector<String16> list;
    if (ports.getDevicePortList(list) != 0) {
        std::cout << "getDevicePortList fail" << "\n";
        return OK;
    }
    std::cout << "DevicePortList: " << "\n";
    for (const String16& port : list) std::cout << "\t" << String8(port).c_str() << "\n";
    return OK;
}

}  // namespace

DevicePortCtrlCommand::DevicePortCtrlCommand(DumpBrel& parent)
    : ListCommand(parent),
      mName("DevicePortCtrl"),
      mDevicePortCtrl(connect(&IBrelManager::getDevicePortCtrl, "getDevicePortCtrl() fail\n")) {}

Status DevicePortCtrlCommand::registerAllOptions() {
    addHelp();
    add("l", "listAllDevicePorts", kNone, mDevicePortCtrl, listDevicePorts);
    add("a", "listAllDevicePortStatus", kNone, mDevicePortCtrl, listDevicePorts);
    // port,value with value 0 or 1. The letter takes no argument: only the long form works.
    add("s", "setDevicePortEnabled", kRequired, mDevicePortCtrl,
        [](IDevicePortCtrl& ports, const Input& in) {
            if (in.missing()) return USAGE;
            std::vector<std::string> fields = in.fields(2);
            const std::string& port = fields[0];
            const std::string& value = fields[1];
            if (value != "0" && value != "1") {
                std::cout << "enable value must be 0 or 1" << "\n";
                return OK;
            }

            // The port must be part of a name that the service lists; the text as typed is sent.
            std::vector<String16> list;
            if (ports.getDevicePortList(list) != 0) {
                std::cout << "getDevicePortList fail" << "\n";
                return OK;
            }
            bool listed = false;
            for (const String16& entry : list) {
                if (std::string(String8(entry).c_str()).find(port) != std::string::npos) {
                    listed = true;
                    break;
                }
            }
            if (!listed) {
                std::cout << "port " << port << " not exists" << "\n";
                return OK;
            }

            bool enable = value == "1";
            int status = ports.setDevicePortEnabled(port.c_str(), enable);
            const char* word = enable ? "enable" : "disable";
            if (status == 1)
                std::cout << word << " " << port << " success" << "\n";
            else
                std::cout << word << " " << port << " failed, status:" << status << "\n";
            return OK;
        });
    takes("<port>=lan|usb,0|1");
    return OK;
}

std::unique_ptr<ListCommand> newDevicePortCtrlCommand(DumpBrel& parent) {
    return std::make_unique<DevicePortCtrlCommand>(parent);
}

}  // namespace dumpbrel
}  // namespace android
