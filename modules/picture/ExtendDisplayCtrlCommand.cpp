#include <cstdlib>
#include <cstring>
#include <iostream>
#include <memory>
#include <string>

#include <utils/String16.h>
#include <utils/String8.h>

#include "framework/ListCommand.h"
#include "framework/Rows.h"
#include "service/IExtendDisplayCtrl.h"

namespace android {
namespace dumpbrel {

class ExtendDisplayCtrlCommand : public ListCommand {
public:
    explicit ExtendDisplayCtrlCommand(DumpBrel& parent);
    std::string getName() const override { return mName; }
    std::string getSimpleDescription() const override { return "ExtendDisplayCtrl Module"; }
    Status registerAllOptions() override;

private:
    std::string mName;
    sp<IExtendDisplayCtrl> mExtendDisplayCtrl;
};

namespace {

// A switch is on for the exact word "on" only; anything else, numbers included, means off.
bool isOn(const char* text) {
    return text != nullptr && strcmp(text, "on") == 0;
}

// The tool's own codes for the resolutions of the extended display.
const char* resolutionName(int code) {
    switch (code) {
        case 1:
            return "3840x2160p60";
        case 2:
            return "1920x1080p60";
        case 3:
            return "720x480p60";
        default:
            return "Auto";
    }
}

const char* onOff(bool on) {
    return on ? "on" : "off";
}

}  // namespace

ExtendDisplayCtrlCommand::ExtendDisplayCtrlCommand(DumpBrel& parent)
    : ListCommand(parent),
      mName("ExtendDisplayCtrl"),
      mExtendDisplayCtrl(connect(&IBrelManager::getExtendDisplayCtrl, "getExtendDisplayCtrl() fail\n")) {}

Status ExtendDisplayCtrlCommand::registerAllOptions() {
    addHelp();
    add("e:", "setExtendDisplayHDCPStatus", kRequired, mExtendDisplayCtrl,
        [](IExtendDisplayCtrl& display, const Input& in) {
            display.setExtendDisplayHDCPStatus(isOn(in.text));
            return OK;
        });
    takes("on|off");
    add("s", "getExtendDisplayHDCPStatus", kNone, mExtendDisplayCtrl,
        [](IExtendDisplayCtrl& display, const Input&) {
            std::cout << "getExtendDisplayHDCPStatus: "
                      << onOff(display.getExtendDisplayHDCPStatus() == 1) << '\n';
            return OK;
        });
    add("e:", "setTypecOutHDCPStatus", kRequired, mExtendDisplayCtrl,
        [](IExtendDisplayCtrl& display, const Input& in) {
            display.setTypecOutHDCPStatus(isOn(in.text));
            return OK;
        });
    takes("on|off");
    add("t", "getTypecOutHDCPStatus", kNone, mExtendDisplayCtrl,
        [](IExtendDisplayCtrl& display, const Input&) {
            std::cout << "getTypecOutHDCPStatus: " << onOff(display.getTypecOutHDCPStatus() == 1)
                      << '\n';
            return OK;
        });
    add("a", "getExtendDisplayUserResolutionList", kNone, mExtendDisplayCtrl,
        [](IExtendDisplayCtrl& display, const Input&) {
            printLines(display.getExtendDisplayUserResolutionList());
            return OK;
        });
    add("b:", "setExtendDisplayEnabled", kRequired, mExtendDisplayCtrl,
        [](IExtendDisplayCtrl& display, const Input& in) {
            display.setExtendDisplayEnabled(isOn(in.text));
            return OK;
        });
    takes("on|off");
    add("c", "getExtendDisplayEnabled", kNone, mExtendDisplayCtrl,
        [](IExtendDisplayCtrl& display, const Input&) {
            std::cout << "getExtendDisplayEnabled: " << onOff(display.getExtendDisplayEnabled())
                      << '\n';
            return OK;
        });
    add("d:", "setHdmiInOutEnabled", kRequired, mExtendDisplayCtrl,
        [](IExtendDisplayCtrl& display, const Input& in) {
            display.setHdmiInOutEnabled(isOn(in.text));
            return OK;
        });
    takes("on|off");
    add("f", "getHdmiInOutEnabled", kNone, mExtendDisplayCtrl,
        [](IExtendDisplayCtrl& display, const Input&) {
            std::cout << "getHdmiInOutEnabled: " << onOff(display.getHdmiInOutEnabled()) << '\n';
            return OK;
        });
    add("g:", "setExtendDisplayResolution", kRequired, mExtendDisplayCtrl,
        [](IExtendDisplayCtrl& display, const Input& in) {
            display.setExtendDisplayResolution(String16(resolutionName(atoi(in.text))));
            return OK;
        });
    add("m", "getExtendDisplayResolution", kNone, mExtendDisplayCtrl,
        printResult("getExtendDisplayResolution: ",
                    &IExtendDisplayCtrl::getExtendDisplayResolution));
    return OK;
}

std::unique_ptr<ListCommand> newExtendDisplayCtrlCommand(DumpBrel& parent) {
    return std::make_unique<ExtendDisplayCtrlCommand>(parent);
}

}  // namespace dumpbrel
}  // namespace android
