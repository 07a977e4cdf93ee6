#pragma once

// The 41 sub-services. Each is a ListCommand with its name, one interface of the service and
// its table of rows (registerAllOptions, in the module's own unit).

#include <string>

#include "framework/ListCommand.h"
#include "service/Services.h"

namespace android {
namespace dumpbrel {

#define DUMPBREL_MODULE(Class, Interface, field)                    \
    class Class : public ListCommand {                              \
    public:                                                         \
        explicit Class(DumpBrel& parent);                           \
        std::string getName() const override { return mName; }     \
        std::string getSimpleDescription() const override;          \
        Status registerAllOptions() override;                       \
                                                                    \
    private:                                                        \
        std::string mName;                                          \
        sp<Interface> field;                                        \
    }

DUMPBREL_MODULE(AnionCtrlCommand, IAnionCtrl, mAnionCtrl);
DUMPBREL_MODULE(AtCfgControlCommand, IAtCfgControl, mAtCfgControl);
DUMPBREL_MODULE(AudioCtrlCommand, IAudioCtrl, mAudioCtrl);
DUMPBREL_MODULE(AvmanagerCommand, IAvManagerCtrl, mAvManagerCtrl);
DUMPBREL_MODULE(BacklightCtrlCommand, IBacklightCtrl, mBacklightCtrl);
DUMPBREL_MODULE(BluetoothCtrlCommand, IBluetoothCtrl, mBluetoothCtrl);
DUMPBREL_MODULE(BurnKeyCtrlCommand, IBurnKeyCtrl, mBurnKeyCtrl);
DUMPBREL_MODULE(BurnMacCtrlCommand, IBurnMacCtrl, mBurnMacCtrl);
DUMPBREL_MODULE(CameraCtrlCommand, ICameraCtrl, mCameraCtrl);
DUMPBREL_MODULE(ExtendDisplayCtrlCommand, IExtendDisplayCtrl, mExtendDisplayCtrl);
DUMPBREL_MODULE(FwUpgradeCommand, IFwUpgrade, mFwUpgrade);
DUMPBREL_MODULE(IoBoxCtrlCommand, IIoBoxCtrl, mIoBoxCtrl);
DUMPBREL_MODULE(KeyboardCtrlCommand, IKeyboardCtrl, mKeyboardCtrl);
DUMPBREL_MODULE(NetworkCtrlCommand, INetworkCtrl, mNetworkCtrl);
DUMPBREL_MODULE(PQCtrlCommand, IPQCtrl, mPQCtrl);
DUMPBREL_MODULE(PcModuleCtrlCommand, IPcModuleCtrl, mPcModuleCtrl);
DUMPBREL_MODULE(PmsCtrlCommand, IPmsCtrl, mPmsCtrl);
DUMPBREL_MODULE(ProjectIdCommand, IProjectId, mProjectId);
DUMPBREL_MODULE(RGBLedCtrlCommand, IRGBLedCtrl, mRGBLedCtrl);
DUMPBREL_MODULE(RemoteCtrlCommand, IRemoteCtrl, mRemoteCtrl);
DUMPBREL_MODULE(Rs232CtrlCommand, IRs232Ctrl, mRs232Ctrl);
DUMPBREL_MODULE(SensorBoxCtrlCommand, ISensorBoxCtrl, mSensorBoxCtrl);
DUMPBREL_MODULE(SerialCtrlCommand, ISerialCtrl, mSerialCtrl);
DUMPBREL_MODULE(SmartPenModeCtrlCommand, ISmartPenModeCtrl, mSmartPenModeCtrl);
DUMPBREL_MODULE(SourceCtrlCommand, ISourceCtrl, mSourceCtrl);
DUMPBREL_MODULE(SystemCtrlCommand, ISystemCtrl, mSystemCtrl);
DUMPBREL_MODULE(TxbCtrlCommand, ITxbCtrl, mTxbCtrl);
DUMPBREL_MODULE(VgaAdjustCommand, IVgaAdjust, mVgaAdjust);
DUMPBREL_MODULE(XbugCtrlCommand, IXbugCtrl, mXbugCtrl);
DUMPBREL_MODULE(LandscapeCtrlCommand, ILandscapeCtrl, mLandscapeCtrl);
DUMPBREL_MODULE(SoundScreenAngleCtrlCommand, ISoundScreenAngleCtrl, mSoundScreenAngleCtrl);
DUMPBREL_MODULE(AiNoiseCtrlCommand, IAiNoiseCtrl, mAiNoiseCtrl);
DUMPBREL_MODULE(DevicePortCtrlCommand, IDevicePortCtrl, mDevicePortCtrl);
DUMPBREL_MODULE(TeaDspCtrlCommand, ITeaDspCtrl, mTeaDspCtrl);
DUMPBREL_MODULE(GpioCtrlCommand, IGpioCtrl, mGpioCtrl);
DUMPBREL_MODULE(SuspendCtrlCommand, ISuspendCtrl, mSuspendCtrl);
DUMPBREL_MODULE(MicrophoneCtrlCommand, IMicrophoneCtrl, mMicrophoneCtrl);
DUMPBREL_MODULE(DebugCtrlCommand, IDebugCtrl, mDebugCtrl);

// TouchCtrl also lists the touch firmware, through a second interface.
class TouchCtrlCommand : public ListCommand {
public:
    explicit TouchCtrlCommand(DumpBrel& parent);
    std::string getName() const override { return mName; }
    std::string getSimpleDescription() const override;
    Status registerAllOptions() override;

private:
    std::string mName;
    sp<ITouchCtrl> mTouchCtrl;
    sp<IFwTouchCtrl> mFwTouchCtrl;
};

class FwTouchCtrlCommand : public ListCommand {
public:
    explicit FwTouchCtrlCommand(DumpBrel& parent);
    std::string getName() const override { return mName; }
    std::string getSimpleDescription() const override;
    Status registerAllOptions() override;

    void printFwTouchInfo(const std::vector<EntityFwTouch>& list);
    void printFwTouchDriverInfo(const std::vector<EntityFwTouchDriver>& list);

private:
    std::string mName;
    sp<IFwTouchCtrl> mFwTouchCtrl;
};

class DeviceCtrlCommand : public ListCommand {
public:
    explicit DeviceCtrlCommand(DumpBrel& parent);
    std::string getName() const override { return mName; }
    std::string getSimpleDescription() const override;
    Status registerAllOptions() override;

    // The usbsw row: action, target and value as typed.
    void doUsbSwDebug(const std::string& action, const std::string& target,
                      const std::string& value);
    int getUsbswChannelByName(const std::string& name);

private:
    std::string mName;
    sp<IDeviceCtrl> mDeviceCtrl;
};

#undef DUMPBREL_MODULE

}  // namespace dumpbrel
}  // namespace android
