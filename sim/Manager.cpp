#include "Controls.h"
#include "Panel.h"

namespace android {

namespace {

// Every accessor hands out a new control, unless BREL_SIM_ABSENT names it or says "all".
class SimBrelManager : public IBrelManager {
    template <typename I>
    static I* give(const char* accessor, I* (*make)()) {
        if (sim::Panel::absent("all") || sim::Panel::absent(accessor)) return nullptr;
        return make();
    }

public:
    ISystemCtrl* getSystemCtrl() override { return give("getSystemCtrl", sim::newSystemCtrl); }
    IProjectId* getProjectId() override { return give("getProjectId", sim::newProjectId); }
    ISourceCtrl* getSourceCtrl() override { return give("getSourceCtrl", sim::newSourceCtrl); }
    IDeviceCtrl* getDeviceCtrl() override { return give("getDeviceCtrl", sim::newDeviceCtrl); }
    IDevicePortCtrl* getDevicePortCtrl() override { return give("getDevicePortCtrl", sim::newDevicePortCtrl); }
    INetworkCtrl* getNetworkCtrl() override { return give("getNetworkCtrl", sim::newNetworkCtrl); }
    IBluetoothCtrl* getBluetoothCtrl() override { return give("getBluetoothCtrl", sim::newBluetoothCtrl); }
    IAtCfgControl* getAtCfgControl() override { return give("getAtCfgControl", sim::newAtCfgControl); }
    IKeyboardCtrl* getKeyboardCtrl() override { return give("getKeyboardCtrl", sim::newKeyboardCtrl); }
    IAvManagerCtrl* getAvManagerCtrl() override { return give("getAvManagerCtrl", sim::newAvManagerCtrl); }
    IFwUpgrade* getFwUpgrade() override { return give("getFwUpgrade", sim::newFwUpgrade); }
    IRs232Ctrl* getRs232Ctrl() override { return give("getRs232Ctrl", sim::newRs232Ctrl); }
    IRGBLedCtrl* getRGBLedCtrl() override { return give("getRGBLedCtrl", sim::newRGBLedCtrl); }
    IAudioCtrl* getAudioCtrl() override { return give("getAudioCtrl", sim::newAudioCtrl); }
    ITouchCtrl* getTouchCtrl() override { return give("getTouchCtrl", sim::newTouchCtrl); }
    ITeaDspCtrl* getTeaDspCtrl() override { return give("getTeaDspCtrl", sim::newTeaDspCtrl); }
    IAnionCtrl* getAnionCtrl() override { return give("getAnionCtrl", sim::newAnionCtrl); }
    IBacklightCtrl* getBacklightCtrl() override { return give("getBacklightCtrl", sim::newBacklightCtrl); }
    IVgaAdjust* getVgaAdjust() override { return give("getVgaAdjust", sim::newVgaAdjust); }
    ICameraCtrl* getCameraCtrl() override { return give("getCameraCtrl", sim::newCameraCtrl); }
    ISensorBoxCtrl* getSensorBoxCtrl() override { return give("getSensorBoxCtrl", sim::newSensorBoxCtrl); }
    IIoBoxCtrl* getIoBoxCtrl() override { return give("getIoBoxCtrl", sim::newIoBoxCtrl); }
    ITxbCtrl* getTxbCtrl() override { return give("getTxbCtrl", sim::newTxbCtrl); }
    IGpioCtrl* getGpioCtrl() override { return give("getGpioCtrl", sim::newGpioCtrl); }
    IXbugCtrl* getXbugCtrl() override { return give("getXbugCtrl", sim::newXbugCtrl); }
    IRemoteCtrl* getRemoteCtrl() override { return give("getRemoteCtrl", sim::newRemoteCtrl); }
    IPmsCtrl* getPmsCtrl() override { return give("getPmsCtrl", sim::newPmsCtrl); }
    IExtendDisplayCtrl* getExtendDisplayCtrl() override { return give("getExtendDisplayCtrl", sim::newExtendDisplayCtrl); }
    IPQCtrl* getPQCtrl() override { return give("getPQCtrl", sim::newPQCtrl); }
    IPcModuleCtrl* getPcModuleCtrl() override { return give("getPcModuleCtrl", sim::newPcModuleCtrl); }
    ISmartPenModeCtrl* getSmartPenModeCtrl() override { return give("getSmartPenModeCtrl", sim::newSmartPenModeCtrl); }
    IMicrophoneCtrl* getMicrophoneCtrl() override { return give("getMicrophoneCtrl", sim::newMicrophoneCtrl); }
    IBurnKeyCtrl* getBurnKeyCtrl() override { return give("getBurnKeyCtrl", sim::newBurnKeyCtrl); }
    IBurnMacCtrl* getBurnMacCtrl() override { return give("getBurnMacCtrl", sim::newBurnMacCtrl); }
    IFwTouchCtrl* getFwTouchCtrl() override { return give("getFwTouchCtrl", sim::newFwTouchCtrl); }
    ILandscapeCtrl* getLandscapeCtrl() override { return give("getLandscapeCtrl", sim::newLandscapeCtrl); }
    ISoundScreenAngleCtrl* getSoundScreenAngleCtrl() override { return give("getSoundScreenAngleCtrl", sim::newSoundScreenAngleCtrl); }
    IAiNoiseCtrl* getAiNoiseCtrl() override { return give("getAiNoiseCtrl", sim::newAiNoiseCtrl); }
    ISuspendCtrl* getSuspendCtrl() override { return give("getSuspendCtrl", sim::newSuspendCtrl); }
    ISerialCtrl* getSerialCtrl() override { return give("getSerialCtrl", sim::newSerialCtrl); }
    IDebugCtrl* getDebugCtrl() override { return give("getDebugCtrl", sim::newDebugCtrl); }
};

}  // namespace

IBrelManager* BrelCreator::create() {
    if (sim::Panel::absent("manager")) return nullptr;
    return new SimBrelManager;
}

}  // namespace android
