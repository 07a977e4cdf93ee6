#include <cstdlib>
#include <iostream>
#include <memory>
#include <string>
#include <vector>

#include "framework/ListCommand.h"
#include "service/ISystemCtrl.h"

namespace android {
namespace dumpbrel {

class SystemCtrlCommand : public ListCommand {
public:
    explicit SystemCtrlCommand(DumpBrel& parent);
    std::string getName() const override { return mName; }
    std::string getSimpleDescription() const override;
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

const char* enableDisable(bool on) {
    return on ? "enable" : "disable";
}

const char* successFail(bool ok) {
    return ok ? "success" : "fail";
}

}  // namespace

SystemCtrlCommand::SystemCtrlCommand(DumpBrel& parent)
    : ListCommand(parent),
      mName("SystemCtrl"),
      mSystemCtrl(connect(&IBrelManager::getSystemCtrl, "getSystemCtrl() fail\n")) {}

std::string SystemCtrlCommand::getSimpleDescription() const {
    return "SystemCtrl Module";
}

Status SystemCtrlCommand::registerAllOptions() {
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
    add("s", "getSystemSetting", kNone, mSystemCtrl, [](ISystemCtrl& sys, const Input&) {
        int setting = sys.getSystemSetting();
        std::cout << "SystemSetting = " << setting << '\n';
        return OK;
    });
    add("c", "isCtsRunning", kNone, mSystemCtrl, [](ISystemCtrl& sys, const Input&) {
        bool running = sys.isCtsRunning();
        std::cout << "CtsRunning : " << (running ? "yes" : "no") << '\n';
        return OK;
    });
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
    add("d", "getDebugUartSwitch", kNone, mSystemCtrl, [](ISystemCtrl& sys, const Input&) {
        int value = sys.getDebugUartSwitch();
        std::cout << "getDebugUartSwitch, ret = " << value << '\n';
        return OK;
    });
    add("t:", "setAlarmTime", kRequired, mSystemCtrl, [](ISystemCtrl& sys, const Input& in) {
        if (in.missing()) return USAGE;
        int value = atoi(in.text);
        bool ok = sys.setAlarmTime(value);
        std::cout << "setAlarmTime = " << value << ", ret = " << successFail(ok) << '\n';
        return OK;
    });
    add("p:", "setIrInPort", kRequired, mSystemCtrl, [](ISystemCtrl& sys, const Input& in) {
        if (in.missing()) return USAGE;
        int value = atoi(in.text);
        bool ret = sys.setIrInPort(value);
        std::cout << "setIrInPort = " << value << ", ret = " << ret << '\n';
        return OK;
    });
    add("i", "getIrInPort", kNone, mSystemCtrl, [](ISystemCtrl& sys, const Input&) {
        int port = sys.getIrInPort();
        std::cout << "getIrInPort = " << port << '\n';
        return OK;
    });
    add("s", "getDeviceAVBState", kNone, mSystemCtrl, [](ISystemCtrl& sys, const Input&) {
        bool state = sys.getDeviceAVBState();
        std::cout << "device avb state is " << state << '\n';
        return OK;
    });
    add("a:", "setDeviceAVBState", kRequired, mSystemCtrl, [](ISystemCtrl& sys, const Input& in) {
        if (in.missing()) return USAGE;
        bool state = atoi(in.text) != 0;
        bool ret = sys.setDeviceAVBState(state);
        std::cout << "device avb state to " << state << ", ret = " << ret << '\n';
        return OK;
    });

    // USB.
    add("b", "getUsbAdbState", kNone, mSystemCtrl, [](ISystemCtrl& sys, const Input&) {
        bool state = sys.getUsbAdbState();
        std::cout << "usb adb state " << enableDisable(state) << '\n';
        return OK;
    });
    add("t:", "setUsbAdbState", kRequired, mSystemCtrl, [](ISystemCtrl& sys, const Input& in) {
        if (in.missing()) return USAGE;
        bool state = atoi(in.text) != 0;
        bool ret = sys.setUsbAdbState(state);
        std::cout << "usb adb state to " << state << ", ret = " << ret << '\n';
        return OK;
    });
    add("u", "getUsbPowerEnableSta", kNone, mSystemCtrl, [](ISystemCtrl& sys, const Input&) {
        bool state = sys.getUsbPowerEnableSta();
        std::cout << "getUsbPowerEnableSta is " << state << '\n';
        return OK;
    });
    add("e:", "setUsbPowerEnable", kRequired, mSystemCtrl, [](ISystemCtrl& sys, const Input& in) {
        if (in.missing()) return USAGE;
        bool enable = atoi(in.text) != 0;
        bool ret = sys.setUsbPowerEnable(enable);
        std::cout << "usb power state to " << enable << ", ret = " << ret << '\n';
        return OK;
    });

    // Suspend-to-RAM lock, wake-up sources and the CPU temperature.
    add("w", "getSTRWakeLockState", kNone, mSystemCtrl, [](ISystemCtrl& sys, const Input&) {
        bool state = sys.getSTRWakeLockState();
        std::cout << "str state is " << (state ? "not lock" : "lock") << '\n';
        return OK;
    });
    add("l:", "setSTRWakeLockState", kRequired, mSystemCtrl,
        [](ISystemCtrl& sys, const Input& in) {
            if (in.missing()) return USAGE;
            bool state = atoi(in.text) != 0;
            bool ret = sys.setSTRWakeLockState(state);
            std::cout << "set str state to " << state << ", ret = " << ret << '\n';
            return OK;
        });
    add("i", "isPirWakeupEnable", kNone, mSystemCtrl, [](ISystemCtrl& sys, const Input&) {
        bool enabled = sys.isPirWakeupEnable();
        std::cout << "pir wakeup state is " << enableDisable(enabled) << '\n';
        return OK;
    });
    add("j:", "setPirWakeupEnable", kRequired, mSystemCtrl, [](ISystemCtrl& sys, const Input& in) {
        if (in.missing()) return USAGE;
        bool enable = atoi(in.text) != 0;
        bool ret = sys.setPirWakeupEnable(enable);
        std::cout << "set pir wakeup to " << enable << ", ret = " << ret << '\n';
        return OK;
    });
    add("c", "getCPUtemperature", kNone, mSystemCtrl, [](ISystemCtrl& sys, const Input&) {
        printNarrow(sys.getCPUtemperature());
        return OK;
    });
    add("c", "isSignalPluginWakeup", kNone, mSystemCtrl, [](ISystemCtrl& sys, const Input&) {
        bool enabled = sys.isSignalPluginWakeup();
        std::cout << "get signal plugin wakeup state: " << enableDisable(enabled) << '\n';
        return OK;
    });
    add("g:", "setSignalPluginWakeup", kRequired, mSystemCtrl,
        [](ISystemCtrl& sys, const Input& in) {
            if (in.missing()) return USAGE;
            bool enable = atoi(in.text) != 0;
            bool ret = sys.setSignalPluginWakeup(enable);
            std::cout << "set signal plugin wakeup state to " << enable << ", ret = " << ret
                      << '\n';
            return OK;
        });
    add("x", "isCecWakeupEnable", kNone, mSystemCtrl, [](ISystemCtrl& sys, const Input&) {
        bool enabled = sys.isCecWakeupEnable();
        std::cout << "cec wakeup state: " << enableDisable(enabled) << '\n';
        return OK;
    });
    add("y:", "setCecWakeupEnable", kRequired, mSystemCtrl, [](ISystemCtrl& sys, const Input& in) {
        if (in.missing()) return USAGE;
        bool enable = atoi(in.text) != 0;
        bool ret = sys.setCecWakeupEnable(enable);
        std::cout << "set cec wakeup state to " << enable << ", ret = " << ret << '\n';
        return OK;
    });
    add("d", "getWakeDelayLinkToID", kNone, mSystemCtrl, [](ISystemCtrl& sys, const Input&) {
        bool link = sys.getWakeDelayLinkToID();
        std::cout << "wakedelay link id: " << link << '\n';
        return OK;
    });
    add("e:", "setWakeDelayLinkToID", kRequired, mSystemCtrl,
        [](ISystemCtrl& sys, const Input& in) {
            if (in.missing()) return USAGE;
            bool link = atoi(in.text) != 0;
            bool ret = sys.setWakeDelayLinkToID(link);
            std::cout << "set wakedelay link id = " << link << ", ret = " << ret << '\n';
            return OK;
        });
    add("r", "isRemoteCtrlWakeupEnable", kNone, mSystemCtrl, [](ISystemCtrl& sys, const Input&) {
        bool enabled = sys.isRemoteCtrlWakeupEnable();
        std::cout << "remote ctrl wakeup state: " << enableDisable(enabled) << '\n';
        return OK;
    });
    add("l:", "setRemoteCtrlWakeupEnable", kRequired, mSystemCtrl,
        [](ISystemCtrl& sys, const Input& in) {
            if (in.missing()) return USAGE;
            bool enable = atoi(in.text) != 0;
            bool ret = sys.setRemoteCtrlWakeupEnable(enable);
            std::cout << "set remote ctrl wakeup to " << enable << ", ret = " << ret << '\n';
            return OK;
        });
    add("s", "isRs232WakeupEnable", kNone, mSystemCtrl, [](ISystemCtrl& sys, const Input&) {
        bool enabled = sys.isRs232WakeupEnable();
        std::cout << "rs232 wakeup state: " << enableDisable(enabled) << '\n';
        return OK;
    });
    add("u:", "setRS232WakeupEnable", kRequired, mSystemCtrl,
        [](ISystemCtrl& sys, const Input& in) {
            if (in.missing()) return USAGE;
            bool enable = atoi(in.text) != 0;
            bool ret = sys.setRS232WakeupEnable(enable);
            std::cout << "set rs232 wakeup to " << enable << ", ret = " << ret << '\n';
            return OK;
        });
    add("k:", "setlockkeyIR", kRequired, mSystemCtrl, [](ISystemCtrl& sys, const Input& in) {
        if (in.missing()) return USAGE;
        std::vector<std::string> field = in.fields(2);  // enable,device
        bool ret = sys.setlockkeyIR(atoi(field[0].c_str()) != 0, atoi(field[1].c_str()));
        std::cout << "set setlockkeyIR lock_enable = " << field[0]
                  << ", lock_device = " << field[1] << ", ret = " << ret << '\n';
        return OK;
    });
    add("v", "isRtcWakeupEnable", kNone, mSystemCtrl, [](ISystemCtrl& sys, const Input&) {
        bool enabled = sys.isRtcWakeupEnable();
        std::cout << "get rtc wakeup state: " << enableDisable(enabled) << '\n';
        return OK;
    });
    add("w:", "setRtcWakeupEnable", kRequired, mSystemCtrl, [](ISystemCtrl& sys, const Input& in) {
        if (in.missing()) return USAGE;
        bool enable = atoi(in.text) != 0;
        bool ret = sys.setRtcWakeupEnable(enable);
        std::cout << "set rtc wakeup state to " << enable << ", ret = " << ret << '\n';
        return OK;
    });
    add("e", "getPirWakeupDelay", kNone, mSystemCtrl, [](ISystemCtrl& sys, const Input&) {
        int minutes = sys.getPirWakeupDelay();
        std::cout << "pir wakeup delay: " << minutes << " minutes" << '\n';
        return OK;
    });
    add("d:", "setPirWakeupDelay", kRequired, mSystemCtrl, [](ISystemCtrl& sys, const Input& in) {
        if (in.missing()) return USAGE;
        bool delay = atoi(in.text) != 0;
        bool ret = sys.setPirWakeupDelay(delay);
        std::cout << "set pir wakeup delay: " << delay << " min, ret = " << ret << '\n';
        return OK;
    });

    // Boot logo, HDMI switch output, aena state and device reset.
    add("b", "getBootLogoEnable", kNone, mSystemCtrl, [](ISystemCtrl& sys, const Input&) {
        bool enabled = sys.getBootLogoEnable();
        std::cout << "getBootLogoEnable: " << enabled << '\n';
        return OK;
    });
    add("f:", "setBootLogoEnable", kRequired, mSystemCtrl, [](ISystemCtrl& sys, const Input& in) {
        if (in.missing()) return USAGE;
        bool enable = atoi(in.text) != 0;
        sys.setBootLogoEnable(enable);
        std::cout << "setBootLogoEnable " << enableDisable(enable) << '\n';
        return OK;
    });
    add("m:", "enable_hdmi_switch_tx", kRequired, mSystemCtrl,
        [](ISystemCtrl& sys, const Input& in) {
            if (in.missing()) return USAGE;
            bool enable = atoi(in.text) != 0;
            sys.enable_hdmi_switch_tx(enable);
            std::cout << "enable_hdmi_switch_tx: " << enableDisable(enable) << '\n';
            return OK;
        });
    add("n:", "getAenaState", kRequired, mSystemCtrl, [](ISystemCtrl& sys, const Input& in) {
        if (in.missing()) return USAGE;
        int aenaId = atoi(in.text);
        int state = sys.getAenaState(aenaId);
        std::cout << "aena_id: " << aenaId << ", aena_val: " << state << '\n';
        return OK;
    });
    add("reset", "doDeviceReset", kNone, mSystemCtrl, [](ISystemCtrl& sys, const Input&) {
        int ret = sys.doDeviceReset();
        std::cout << "doDeviceReset: " << ret << '\n';
        return OK;
    });

    // Boot media.
    add("resetanim", "resetBootAnimation", kNone, mSystemCtrl, [](ISystemCtrl& sys, const Input&) {
        bool ret = sys.resetBootAnimation();
        std::cout << "resetBootAnimation: " << ret << '\n';
        return OK;
    });
    add("resetvideo", "resetBootVideo", kNone, mSystemCtrl, [](ISystemCtrl& sys, const Input&) {
        bool ret = sys.resetBootVideo();
        std::cout << "resetBootVideo: " << ret << '\n';
        return OK;
    });
    add("resetlogo", "resetBootLogo", kNone, mSystemCtrl, [](ISystemCtrl& sys, const Input&) {
        bool ret = sys.resetBootLogo();
        std::cout << "resetBootLogo: " << ret << '\n';
        return OK;
    });
    add("getCustomBootMediaPath", "getCustomBootMediaPath", kNone, mSystemCtrl,
        [](ISystemCtrl& sys, const Input&) {
            printNarrow(sys.getCustomBootMediaPath());
            return OK;
        });
    add("setCustomBootMediaType", "setCustomBootMediaType", kRequired, mSystemCtrl,
        [](ISystemCtrl& sys, const Input& in) {
            if (in.missing()) return USAGE;
            int type = atoi(in.text);
            sys.setCustomBootMediaType(type);
            std::cout << "setCustomBootMediaType " << (type != 0 ? "bootvideo" : "bootanimation")
                      << '\n';
            return OK;
        },
        "0-1:\n --0:bootanimation --1:bootvideo");

    // Performance and power.
    add("keepCpuInPerformance", "keepCpuInPerformance", kRequired, mSystemCtrl,
        [](ISystemCtrl& sys, const Input& in) {
            if (in.missing()) return USAGE;
            int seconds = atoi(in.text);
            bool ret = sys.keepCpuInPerformance(seconds);
            std::cout << "keepCpuInPerformance " << seconds << "s" << " return=" << ret << '\n';
            return OK;
        },
        "seconds:[1-3600]");
    add("cancelCpuInPerformance", "cancelCpuInPerformance", kNone, mSystemCtrl,
        [](ISystemCtrl& sys, const Input&) {
            bool ret = sys.cancelCpuInPerformance();
            std::cout << "cancelCpuInPerformance return=" << ret << '\n';
            return OK;
        });
    add("keepGpuInPerformance", "keepGpuInPerformance", kRequired, mSystemCtrl,
        [](ISystemCtrl& sys, const Input& in) {
            if (in.missing()) return USAGE;
            int seconds = atoi(in.text);
            bool ret = sys.keepGpuInPerformance(seconds);
            std::cout << "keepGpuInPerformance " << seconds << "s" << " return=" << ret << '\n';
            return OK;
        },
        "seconds:[1-3600]");
    add("cancelGpuInPerformance", "cancelGpuInPerformance", kNone, mSystemCtrl,
        [](ISystemCtrl& sys, const Input&) {
            bool ret = sys.cancelGpuInPerformance();
            std::cout << "cancelGpuInPerformance return=" << ret << '\n';
            return OK;
        });
    add("getPowerMode", "getPowerMode", kNone, mSystemCtrl, [](ISystemCtrl& sys, const Input&) {
        int mode = sys.getPowerMode();
        std::cout << "getPowerMode return=" << mode << '\n';
        return OK;
    });
    add("setPowerMode", "setPowerMode", kRequired, mSystemCtrl,
        [](ISystemCtrl& sys, const Input& in) {
            if (in.missing()) return USAGE;
            int mode = atoi(in.text);
            bool ret = sys.setPowerMode(mode);
            std::cout << "setPowerMode " << mode << " return=" << ret << '\n';
            return OK;
        },
        "mode:[0-2]");
    add("setCecCtlType", "setCecCtlType", kRequired, mSystemCtrl,
        [](ISystemCtrl& sys, const Input& in) {
            if (in.missing()) return USAGE;
            int type = atoi(in.text);
            bool ret = sys.setCecCtlType(type);
            std::cout << "setCecCtlType " << type << " return=" << ret << '\n';
            return OK;
        },
        "type:[0-5]");
    add("setSarPowerMode", "setSarPowerMode", kRequired, mSystemCtrl,
        [](ISystemCtrl& sys, const Input& in) {
            if (in.missing()) return USAGE;
            int mode = atoi(in.text);
            bool ret = sys.setSarPowerMode(mode);
            std::cout << "setSarPowerMode " << mode << " return=" << ret << '\n';
            return OK;
        },
        "mode:[0-1]");
    // Takes an argument only to get past the parser; it is never read.
    add("getSarPowerMode", "getSarPowerMode", kRequired, mSystemCtrl,
        [](ISystemCtrl& sys, const Input& in) {
            if (in.missing()) return USAGE;
            int mode = sys.getSarPowerMode();
            std::cout << "getSarPowerMode " << " return=" << mode << '\n';
            return OK;
        });
    return OK;
}

std::unique_ptr<ListCommand> newSystemCtrlCommand(DumpBrel& parent) {
    return std::make_unique<SystemCtrlCommand>(parent);
}

}  // namespace dumpbrel
}  // namespace android
