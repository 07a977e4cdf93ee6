#include <cstdlib>
#include <iostream>
#include <memory>
#include <string>
#include <vector>

#include "framework/ListCommand.h"
#include "framework/Rows.h"
#include "service/ISystemCtrl.h"

namespace android {
namespace dumpbrel {

class SystemCtrlCommand : public ListCommand {
public:
    explicit SystemCtrlCommand(DumpBrel& parent);
    std::string getName() const override { return mName; }
    std::string getSimpleDescription() const override { return "SystemCtrl Module"; }
    Status registerAllOptions() override;

private:
    std::string mName;
    sp<ISystemCtrl> mSystemCtrl;
};

namespace {

// The service's text one byte per 16-bit unit, keeping the unit's low 8 bits, then a newline.
// ASCII comes out as it is; anything else as the low byte of its code unit.
void printNarrow(const String16& text) {
    const char16_t* units = text;
    for (size_t i = 0; i < text.size(); ++i)
        std::cout.put(static_cast<char>(static_cast<unsigned char>(units[i] & 0xff)));
    std::cout << '\n';
}

const char* yesNo(bool running) {
    return running ? "yes" : "no";
}

const char* notLockLock(bool state) {
    return state ? "not lock" : "lock";
}

const char* bootMediaName(int type) {
    return type != 0 ? "bootvideo" : "bootanimation";
}

}  // namespace

SystemCtrlCommand::SystemCtrlCommand(DumpBrel& parent)
    : ListCommand(parent),
      mName("SystemCtrl"),
      mSystemCtrl(connect(&IBrelManager::getSystemCtrl, "getSystemCtrl() fail\n")) {}

Status SystemCtrlCommand::registerAllOptions() {
    using Sys = ISystemCtrl;
    addHelp();

    // Security, test state, debug port, infra-red and alarm.
    add("m", "getSelinuxMode", kNone, mSystemCtrl, [](ISystemCtrl& sys, const Input&) {
        switch (sys.getSelinuxMode()) {
            case 1:
                std::cout << "selinux: DISABLE" << '\n';
                break;
            case 2:
                std::cout << "selinux: PERMISSIVE" << '\n';
                break;
            case 3:
                std::cout << "selinux: ENFORCING" << '\n';
                break;
            default:
                std::cout << "get selinux mode error!" << '\n';
                break;
        }
        return OK;
    });
    add("s", "getSystemSetting", kNone, mSystemCtrl,
        printResult("SystemSetting = ", &Sys::getSystemSetting));
    add("c", "isCtsRunning", kNone, mSystemCtrl,
        printResult("CtsRunning : ", &Sys::isCtsRunning, yesNo));
    add("r:", "setCtsRunning", kRequired, mSystemCtrl, [](ISystemCtrl& sys, const Input& in) {
        if (in.missing()) return USAGE;
        int value = atoi(in.text);
        sys.setCtsRunning(value != 0);
        std::cout << "setCtsRunning " << value << '\n';
        return OK;
    });
    add("u:", "setDebugUartSwitch", kRequired, mSystemCtrl, [](ISystemCtrl& sys, const Input& in) {
        if (in.missing()) return USAGE;
        int value = atoi(in.text);
        bool ok = sys.setDebugUartSwitch(value);
        std::cout << "setDebugUartSwitch " << successFail(ok) << " uartSwitch = " << value << '\n';
        return OK;
    });
    add("d", "getDebugUartSwitch", kNone, mSystemCtrl,
        printResult("getDebugUartSwitch, ret = ", &Sys::getDebugUartSwitch));
    add("t:", "setAlarmTime", kRequired, mSystemCtrl,
        printAtoiAndResult("setAlarmTime = ", &Sys::setAlarmTime, ", ret = ", successFail));
    add("p:", "setIrInPort", kRequired, mSystemCtrl,
        printAtoiAndResult("setIrInPort = ", &Sys::setIrInPort));
    add("i", "getIrInPort", kNone, mSystemCtrl, printResult("getIrInPort = ", &Sys::getIrInPort));
    add("s", "getDeviceAVBState", kNone, mSystemCtrl,
        printResult("device avb state is ", &Sys::getDeviceAVBState));
    add("a:", "setDeviceAVBState", kRequired, mSystemCtrl,
        printAtoiAndResult("device avb state to ", &Sys::setDeviceAVBState));

    // USB.
    add("b", "getUsbAdbState", kNone, mSystemCtrl,
        printResult("usb adb state ", &Sys::getUsbAdbState, enableDisable));
    add("t:", "setUsbAdbState", kRequired, mSystemCtrl,
        printAtoiAndResult("usb adb state to ", &Sys::setUsbAdbState));
    add("u", "getUsbPowerEnableSta", kNone, mSystemCtrl,
        printResult("getUsbPowerEnableSta is ", &Sys::getUsbPowerEnableSta));
    add("e:", "setUsbPowerEnable", kRequired, mSystemCtrl,
        printAtoiAndResult("usb power state to ", &Sys::setUsbPowerEnable));

    // Suspend-to-RAM lock, wake-up sources and the CPU temperature.
    add("w", "getSTRWakeLockState", kNone, mSystemCtrl,
        printResult("str state is ", &Sys::getSTRWakeLockState, notLockLock));
    add("l:", "setSTRWakeLockState", kRequired, mSystemCtrl,
        printAtoiAndResult("set str state to ", &Sys::setSTRWakeLockState));
    add("i", "isPirWakeupEnable", kNone, mSystemCtrl,
        printResult("pir wakeup state is ", &Sys::isPirWakeupEnable, enableDisable));
    add("j:", "setPirWakeupEnable", kRequired, mSystemCtrl,
        printAtoiAndResult("set pir wakeup to ", &Sys::setPirWakeupEnable));
    add("c", "getCPUtemperature", kNone, mSystemCtrl, [](ISystemCtrl& sys, const Input&) {
        printNarrow(sys.getCPUtemperature());
        return OK;
    });
    add("c", "isSignalPluginWakeup", kNone, mSystemCtrl,
        printResult("get signal plugin wakeup state: ", &Sys::isSignalPluginWakeup,
                    enableDisable));
    add("g:", "setSignalPluginWakeup", kRequired, mSystemCtrl,
        printAtoiAndResult("set signal plugin wakeup state to ", &Sys::setSignalPluginWakeup));
    add("x", "isCecWakeupEnable", kNone, mSystemCtrl,
        printResult("cec wakeup state: ", &Sys::isCecWakeupEnable, enableDisable));
    add("y:", "setCecWakeupEnable", kRequired, mSystemCtrl,
        printAtoiAndResult("set cec wakeup state to ", &Sys::setCecWakeupEnable));
    add("d", "getWakeDelayLinkToID", kNone, mSystemCtrl,
        printResult("wakedelay link id: ", &Sys::getWakeDelayLinkToID));
    add("e:", "setWakeDelayLinkToID", kRequired, mSystemCtrl,
        printAtoiAndResult("set wakedelay link id = ", &Sys::setWakeDelayLinkToID));
    add("r", "isRemoteCtrlWakeupEnable", kNone, mSystemCtrl,
        printResult("remote ctrl wakeup state: ", &Sys::isRemoteCtrlWakeupEnable, enableDisable));
    add("l:", "setRemoteCtrlWakeupEnable", kRequired, mSystemCtrl,
        printAtoiAndResult("set remote ctrl wakeup to ", &Sys::setRemoteCtrlWakeupEnable));
    add("s", "isRs232WakeupEnable", kNone, mSystemCtrl,
        printResult("rs232 wakeup state: ", &Sys::isRs232WakeupEnable, enableDisable));
    add("u:", "setRS232WakeupEnable", kRequired, mSystemCtrl,
        printAtoiAndResult("set rs232 wakeup to ", &Sys::setRS232WakeupEnable));
    add("k:", "setlockkeyIR", kRequired, mSystemCtrl, [](ISystemCtrl& sys, const Input& in) {
        if (in.missing()) return USAGE;
        std::vector<std::string> field = in.fields(2);  // enable,device
        bool ret = sys.setlockkeyIR(atoi(field[0].c_str()) != 0, atoi(field[1].c_str()));
        std::cout << "set setlockkeyIR lock_enable = " << field[0]
                  << ", lock_device = " << field[1] << ", ret = " << ret << '\n';
        return OK;
    });
    add("v", "isRtcWakeupEnable", kNone, mSystemCtrl,
        printResult("get rtc wakeup state: ", &Sys::isRtcWakeupEnable, enableDisable));
    add("w:", "setRtcWakeupEnable", kRequired, mSystemCtrl,
        printAtoiAndResult("set rtc wakeup state to ", &Sys::setRtcWakeupEnable));
    add("e", "getPirWakeupDelay", kNone, mSystemCtrl, [](ISystemCtrl& sys, const Input&) {
        int minutes = sys.getPirWakeupDelay();
        std::cout << "pir wakeup delay: " << minutes << " minutes" << '\n';
        return OK;
    });
    add("d:", "setPirWakeupDelay", kRequired, mSystemCtrl,
        printAtoiAndResult("set pir wakeup delay: ", &Sys::setPirWakeupDelay, " min, ret = "));

    // Boot logo, HDMI switch output, aena state and device reset.
    add("b", "getBootLogoEnable", kNone, mSystemCtrl,
        printResult("getBootLogoEnable: ", &Sys::getBootLogoEnable));
    add("f:", "setBootLogoEnable", kRequired, mSystemCtrl,
        printAtoi("setBootLogoEnable ", &Sys::setBootLogoEnable, enableDisable));
    add("m:", "enable_hdmi_switch_tx", kRequired, mSystemCtrl,
        printAtoi("enable_hdmi_switch_tx: ", &Sys::enable_hdmi_switch_tx, enableDisable));
    add("n:", "getAenaState", kRequired, mSystemCtrl,
        printAtoiAndResult("aena_id: ", &Sys::getAenaState, ", aena_val: "));
    add("reset", "doDeviceReset", kNone, mSystemCtrl,
        printResult("doDeviceReset: ", &Sys::doDeviceReset));

    // Boot media.
    add("resetanim", "resetBootAnimation", kNone, mSystemCtrl,
        printResult("resetBootAnimation: ", &Sys::resetBootAnimation));
    add("resetvideo", "resetBootVideo", kNone, mSystemCtrl,
        printResult("resetBootVideo: ", &Sys::resetBootVideo));
    add("resetlogo", "resetBootLogo", kNone, mSystemCtrl,
        printResult("resetBootLogo: ", &Sys::resetBootLogo));
    add("getCustomBootMediaPath", "getCustomBootMediaPath", kNone, mSystemCtrl,
        [](ISystemCtrl& sys, const Input&) {
            printNarrow(sys.getCustomBootMediaPath());
            return OK;
        });
    add("setCustomBootMediaType", "setCustomBootMediaType", kRequired, mSystemCtrl,
        printAtoi("setCustomBootMediaType ", &Sys::setCustomBootMediaType, bootMediaName),
        "0-1:\n --0:bootanimation --1:bootvideo");

    // Performance and power.
    add("keepCpuInPerformance", "keepCpuInPerformance", kRequired, mSystemCtrl,
        printAtoiAndResult("keepCpuInPerformance ", &Sys::keepCpuInPerformance, "s return="),
        "seconds:[1-3600]");
    add("cancelCpuInPerformance", "cancelCpuInPerformance", kNone, mSystemCtrl,
        printResult("cancelCpuInPerformance return=", &Sys::cancelCpuInPerformance));
    add("keepGpuInPerformance", "keepGpuInPerformance", kRequired, mSystemCtrl,
        printAtoiAndResult("keepGpuInPerformance ", &Sys::keepGpuInPerformance, "s return="),
        "seconds:[1-3600]");
    add("cancelGpuInPerformance", "cancelGpuInPerformance", kNone, mSystemCtrl,
        printResult("cancelGpuInPerformance return=", &Sys::cancelGpuInPerformance));
    add("getPowerMode", "getPowerMode", kNone, mSystemCtrl,
        printResult("getPowerMode return=", &Sys::getPowerMode));
    add("setPowerMode", "setPowerMode", kRequired, mSystemCtrl,
        printAtoiAndResult("setPowerMode ", &Sys::setPowerMode, " return="), "mode:[0-2]");
    add("setCecCtlType", "setCecCtlType", kRequired, mSystemCtrl,
        printAtoiAndResult("setCecCtlType ", &Sys::setCecCtlType, " return="), "type:[0-5]");
    add("setSarPowerMode", "setSarPowerMode", kRequired, mSystemCtrl,
        printAtoiAndResult("setSarPowerMode ", &Sys::setSarPowerMode, " return="), "mode:[0-1]");
    // Takes an argument only to get past the parser; it is never read.
    add("getSarPowerMode", "getSarPowerMode", kRequired, mSystemCtrl,
        needsArgument(printResult("getSarPowerMode  return=", &Sys::getSarPowerMode)));
    return OK;
}

std::unique_ptr<ListCommand> newSystemCtrlCommand(DumpBrel& parent) {
    return std::make_unique<SystemCtrlCommand>(parent);
}

}  // namespace dumpbrel
}  // namespace android
