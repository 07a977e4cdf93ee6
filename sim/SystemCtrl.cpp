#include "Panel.h"
#include "service/ISystemCtrl.h"

namespace {

using android::String16;

class SimSystemCtrl : public sim::Control<android::ISystemCtrl> {
public:
    SimSystemCtrl() : Control("ISystemCtrl", kDefaults) {}

    int getSelinuxMode() override { return call<int>(__func__); }
    int getSystemSetting() override { return call<int>(__func__); }
    bool resetBootLogo() override { return call<bool>(__func__); }
    String16 getCPUtemperature() override { return call<String16>(__func__); }
    bool isCtsRunning() override { return call<bool>(__func__); }
    void setCtsRunning(bool running) override { call(__func__, running); }
    bool setDebugUartSwitch(int uartSwitch) override { return call<bool>(__func__, uartSwitch); }
    int getDebugUartSwitch() override { return call<int>(__func__); }
    bool setAlarmTime(int time) override { return call<bool>(__func__, time); }
    bool setIrInPort(int port) override { return call<bool>(__func__, port); }
    int getIrInPort() override { return call<int>(__func__); }
    bool getDeviceAVBState() override { return call<bool>(__func__); }
    bool setDeviceAVBState(bool state) override { return call<bool>(__func__, state); }
    bool setUsbAdbState(bool state) override { return call<bool>(__func__, state); }
    bool getUsbAdbState() override { return call<bool>(__func__); }
    bool isPirWakeupEnable() override { return call<bool>(__func__); }
    bool setPirWakeupEnable(bool enable) override { return call<bool>(__func__, enable); }
    int getPirWakeupDelay() override { return call<int>(__func__); }
    bool setPirWakeupDelay(bool delay) override { return call<bool>(__func__, delay); }
    bool isRemoteCtrlWakeupEnable() override { return call<bool>(__func__); }
    bool setRemoteCtrlWakeupEnable(bool enable) override { return call<bool>(__func__, enable); }
    bool setRS232WakeupEnable(bool enable) override { return call<bool>(__func__, enable); }
    bool isRs232WakeupEnable() override { return call<bool>(__func__); }
    bool setRtcWakeupEnable(bool enable) override { return call<bool>(__func__, enable); }
    bool isRtcWakeupEnable() override { return call<bool>(__func__); }
    bool setUsbPowerEnable(bool enable) override { return call<bool>(__func__, enable); }
    bool getUsbPowerEnableSta() override { return call<bool>(__func__); }
    bool resetBootAnimation() override { return call<bool>(__func__); }
    bool setSTRWakeLockState(bool state) override { return call<bool>(__func__, state); }
    bool getSTRWakeLockState() override { return call<bool>(__func__); }
    bool isSignalPluginWakeup() override { return call<bool>(__func__); }
    bool setSignalPluginWakeup(bool enable) override { return call<bool>(__func__, enable); }
    bool isCecWakeupEnable() override { return call<bool>(__func__); }
    bool setCecWakeupEnable(bool enable) override { return call<bool>(__func__, enable); }
    bool getWakeDelayLinkToID() override { return call<bool>(__func__); }
    bool setWakeDelayLinkToID(bool linkId) override { return call<bool>(__func__, linkId); }
    bool setlockkeyIR(bool lock_enable, int lock_device) override {
        return call<bool>(__func__, lock_enable, lock_device);
    }
    void setBootLogoEnable(bool enable) override { call(__func__, enable); }
    bool getBootLogoEnable() override { return call<bool>(__func__); }
    bool resetBootVideo() override { return call<bool>(__func__); }
    void enable_hdmi_switch_tx(bool enable) override { call(__func__, enable); }
    int getAenaState(int aenaId) override { return call<int>(__func__, aenaId); }
    int doDeviceReset() override { return call<int>(__func__); }
    String16 getCustomBootMediaPath() override { return call<String16>(__func__); }
    void setCustomBootMediaType(int type) override { call(__func__, type); }
    bool keepCpuInPerformance(int seconds) override { return call<bool>(__func__, seconds); }
    bool cancelCpuInPerformance() override { return call<bool>(__func__); }
    bool keepGpuInPerformance(int seconds) override { return call<bool>(__func__, seconds); }
    bool cancelGpuInPerformance() override { return call<bool>(__func__); }
    int getPowerMode() override { return call<int>(__func__); }
    bool setPowerMode(int mode) override { return call<bool>(__func__, mode); }
    bool setCecCtlType(int type) override { return call<bool>(__func__, type); }
    bool setSarPowerMode(int mode) override { return call<bool>(__func__, mode); }
    int getSarPowerMode() override { return call<int>(__func__); }

private:
    // An enforcing production board with ADB on, wake-up by remote, RTC, CEC and signal.
    static constexpr const char* kDefaults = R"({
        "getSelinuxMode": 3,
        "getSystemSetting": 1,
        "resetBootLogo": true,
        "getCPUtemperature": "47.5",
        "isCtsRunning": false,
        "setDebugUartSwitch": true,
        "getDebugUartSwitch": 1,
        "setAlarmTime": true,
        "setIrInPort": true,
        "getIrInPort": 0,
        "getDeviceAVBState": true,
        "setDeviceAVBState": true,
        "setUsbAdbState": true,
        "getUsbAdbState": true,
        "isPirWakeupEnable": false,
        "setPirWakeupEnable": true,
        "getPirWakeupDelay": 5,
        "setPirWakeupDelay": true,
        "isRemoteCtrlWakeupEnable": true,
        "setRemoteCtrlWakeupEnable": true,
        "setRS232WakeupEnable": true,
        "isRs232WakeupEnable": false,
        "setRtcWakeupEnable": true,
        "isRtcWakeupEnable": true,
        "setUsbPowerEnable": true,
        "getUsbPowerEnableSta": true,
        "resetBootAnimation": true,
        "setSTRWakeLockState": true,
        "getSTRWakeLockState": false,
        "isSignalPluginWakeup": true,
        "setSignalPluginWakeup": true,
        "isCecWakeupEnable": true,
        "setCecWakeupEnable": true,
        "getWakeDelayLinkToID": false,
        "setWakeDelayLinkToID": true,
        "setlockkeyIR": true,
        "getBootLogoEnable": true,
        "resetBootVideo": true,
        "getAenaState": 1,
        "doDeviceReset": 0,
        "getCustomBootMediaPath": "/data/vendor/bootmedia/bootanimation.zip",
        "keepCpuInPerformance": true,
        "cancelCpuInPerformance": true,
        "keepGpuInPerformance": true,
        "cancelGpuInPerformance": true,
        "getPowerMode": 0,
        "setPowerMode": true,
        "setCecCtlType": true,
        "setSarPowerMode": true,
        "getSarPowerMode": 0
    })";
};

}  // namespace

template <>
android::ISystemCtrl* sim::make<android::ISystemCtrl>() {
    return new SimSystemCtrl;
}
