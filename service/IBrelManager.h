#pragma once

#include <utils/RefBase.h>

namespace android {

class ISystemCtrl;
class IProjectId;
class ISourceCtrl;
class IDeviceCtrl;
class IDevicePortCtrl;
class INetworkCtrl;
class IBluetoothCtrl;
class IAtCfgControl;
class IKeyboardCtrl;
class IAvManagerCtrl;
class IFwUpgrade;
class IRs232Ctrl;
class IRGBLedCtrl;
class IAudioCtrl;
class ITouchCtrl;
class ITeaDspCtrl;
class IAnionCtrl;
class IBacklightCtrl;
class IVgaAdjust;
class ICameraCtrl;
class ISensorBoxCtrl;
class IIoBoxCtrl;
class ITxbCtrl;
class IGpioCtrl;
class IXbugCtrl;
class IRemoteCtrl;
class IPmsCtrl;
class IExtendDisplayCtrl;
class IPQCtrl;
class IPcModuleCtrl;
class ISmartPenModeCtrl;
class IMicrophoneCtrl;
class IBurnKeyCtrl;
class IBurnMacCtrl;
class IFwTouchCtrl;
class ILandscapeCtrl;
class ISoundScreenAngleCtrl;
class IAiNoiseCtrl;
class ISuspendCtrl;
class ISerialCtrl;
class IDebugCtrl;

// The service's manager: one accessor per control interface, in the order of the library's
// table. Each returns a new strong-countable object or null; the caller keeps it in an sp<>.
class IBrelManager : public RefBase {
public:
    virtual ISystemCtrl* getSystemCtrl() = 0;
    virtual IProjectId* getProjectId() = 0;
    virtual ISourceCtrl* getSourceCtrl() = 0;
    virtual IDeviceCtrl* getDeviceCtrl() = 0;
    virtual IDevicePortCtrl* getDevicePortCtrl() = 0;
    virtual INetworkCtrl* getNetworkCtrl() = 0;
    virtual IBluetoothCtrl* getBluetoothCtrl() = 0;
    virtual IAtCfgControl* getAtCfgControl() = 0;
    virtual IKeyboardCtrl* getKeyboardCtrl() = 0;
    virtual IAvManagerCtrl* getAvManagerCtrl() = 0;
    virtual IFwUpgrade* getFwUpgrade() = 0;
    virtual IRs232Ctrl* getRs232Ctrl() = 0;
    virtual IRGBLedCtrl* getRGBLedCtrl() = 0;
    virtual IAudioCtrl* getAudioCtrl() = 0;
    virtual ITouchCtrl* getTouchCtrl() = 0;
    virtual ITeaDspCtrl* getTeaDspCtrl() = 0;
    virtual IAnionCtrl* getAnionCtrl() = 0;
    virtual IBacklightCtrl* getBacklightCtrl() = 0;
    virtual IVgaAdjust* getVgaAdjust() = 0;
    virtual ICameraCtrl* getCameraCtrl() = 0;
    virtual ISensorBoxCtrl* getSensorBoxCtrl() = 0;
    virtual IIoBoxCtrl* getIoBoxCtrl() = 0;
    virtual ITxbCtrl* getTxbCtrl() = 0;
    virtual IGpioCtrl* getGpioCtrl() = 0;
    virtual IXbugCtrl* getXbugCtrl() = 0;
    virtual IRemoteCtrl* getRemoteCtrl() = 0;
    virtual IPmsCtrl* getPmsCtrl() = 0;
    virtual IExtendDisplayCtrl* getExtendDisplayCtrl() = 0;
    virtual IPQCtrl* getPQCtrl() = 0;
    virtual IPcModuleCtrl* getPcModuleCtrl() = 0;
    virtual ISmartPenModeCtrl* getSmartPenModeCtrl() = 0;
    virtual IMicrophoneCtrl* getMicrophoneCtrl() = 0;
    virtual IBurnKeyCtrl* getBurnKeyCtrl() = 0;
    virtual IBurnMacCtrl* getBurnMacCtrl() = 0;
    virtual IFwTouchCtrl* getFwTouchCtrl() = 0;
    virtual ILandscapeCtrl* getLandscapeCtrl() = 0;
    virtual ISoundScreenAngleCtrl* getSoundScreenAngleCtrl() = 0;
    virtual IAiNoiseCtrl* getAiNoiseCtrl() = 0;
    virtual ISuspendCtrl* getSuspendCtrl() = 0;
    virtual ISerialCtrl* getSerialCtrl() = 0;
    virtual IDebugCtrl* getDebugCtrl() = 0;

protected:
    ~IBrelManager() override = default;
};

}  // namespace android
