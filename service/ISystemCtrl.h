#pragma once

#include <utils/RefBase.h>
#include <utils/String16.h>

namespace android {

// General board state: SELinux, test flags, debug port, infra-red, wake-up sources, boot
// media, performance and power modes.
class ISystemCtrl : public RefBase {
public:
    // 1 disabled, 2 permissive, 3 enforcing.
    virtual int getSelinuxMode() = 0;
    virtual int getSystemSetting() = 0;
    virtual bool resetBootLogo() = 0;
    virtual String16 getCPUtemperature() = 0;
    virtual bool isCtsRunning() = 0;
    virtual void setCtsRunning(bool running) = 0;
    virtual bool setDebugUartSwitch(int uartSwitch) = 0;
    virtual int getDebugUartSwitch() = 0;
    virtual bool setAlarmTime(int time) = 0;
    virtual bool setIrInPort(int port) = 0;
    virtual int getIrInPort() = 0;
    virtual bool getDeviceAVBState() = 0;
    virtual bool setDeviceAVBState(bool state) = 0;
    virtual bool setUsbAdbState(bool state) = 0;
    virtual bool getUsbAdbState() = 0;
    virtual bool isPirWakeupEnable() = 0;
    virtual bool setPirWakeupEnable(bool enable) = 0;
    // In minutes.
    virtual int getPirWakeupDelay() = 0;
    virtual bool setPirWakeupDelay(bool delay) = 0;
    virtual bool isRemoteCtrlWakeupEnable() = 0;
    virtual bool setRemoteCtrlWakeupEnable(bool enable) = 0;
    virtual bool setRS232WakeupEnable(bool enable) = 0;
    virtual bool isRs232WakeupEnable() = 0;
    virtual bool setRtcWakeupEnable(bool enable) = 0;
    virtual bool isRtcWakeupEnable() = 0;
    virtual bool setUsbPowerEnable(bool enable) = 0;
    virtual bool getUsbPowerEnableSta() = 0;
    virtual bool resetBootAnimation() = 0;
    virtual bool setSTRWakeLockState(bool state) = 0;
    virtual bool getSTRWakeLockState() = 0;
    virtual bool isSignalPluginWakeup() = 0;
    virtual bool setSignalPluginWakeup(bool enable) = 0;
    virtual bool isCecWakeupEnable() = 0;
    virtual bool setCecWakeupEnable(bool enable) = 0;
    virtual bool getWakeDelayLinkToID() = 0;
    virtual bool setWakeDelayLinkToID(bool linkId) = 0;
    virtual bool setlockkeyIR(bool lock_enable, int lock_device) = 0;
    virtual void setBootLogoEnable(bool enable) = 0;
    virtual bool getBootLogoEnable() = 0;
    virtual bool resetBootVideo() = 0;
    virtual void enable_hdmi_switch_tx(bool enable) = 0;
    virtual int getAenaState(int aenaId) = 0;
    virtual int doDeviceReset() = 0;
    virtual String16 getCustomBootMediaPath() = 0;
    // 0 boot animation, 1 boot video.
    virtual void setCustomBootMediaType(int type) = 0;
    virtual bool keepCpuInPerformance(int seconds) = 0;
    virtual bool cancelCpuInPerformance() = 0;
    virtual bool keepGpuInPerformance(int seconds) = 0;
    virtual bool cancelGpuInPerformance() = 0;
    virtual int getPowerMode() = 0;
    virtual bool setPowerMode(int mode) = 0;
    virtual bool setCecCtlType(int type) = 0;
    virtual bool setSarPowerMode(int mode) = 0;
    virtual int getSarPowerMode() = 0;

protected:
    ~ISystemCtrl() override = default;
};

}  // namespace android
