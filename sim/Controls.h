#pragma once

// One factory per simulated control, each defined beside its operations.

#include "service/Services.h"

namespace sim {

android::IAnionCtrl* newAnionCtrl();
android::IAtCfgControl* newAtCfgControl();
android::IAudioCtrl* newAudioCtrl();
android::IAvManagerCtrl* newAvManagerCtrl();
android::IBacklightCtrl* newBacklightCtrl();
android::IBluetoothCtrl* newBluetoothCtrl();
android::IBurnKeyCtrl* newBurnKeyCtrl();
android::IBurnMacCtrl* newBurnMacCtrl();
android::ICameraCtrl* newCameraCtrl();
android::IDeviceCtrl* newDeviceCtrl();
android::IExtendDisplayCtrl* newExtendDisplayCtrl();
android::IFwTouchCtrl* newFwTouchCtrl();
android::IFwUpgrade* newFwUpgrade();
android::IIoBoxCtrl* newIoBoxCtrl();
android::IKeyboardCtrl* newKeyboardCtrl();
android::INetworkCtrl* newNetworkCtrl();
android::IPQCtrl* newPQCtrl();
android::IPcModuleCtrl* newPcModuleCtrl();
android::IPmsCtrl* newPmsCtrl();
android::IProjectId* newProjectId();
android::IRGBLedCtrl* newRGBLedCtrl();
android::IRemoteCtrl* newRemoteCtrl();
android::IRs232Ctrl* newRs232Ctrl();
android::ISensorBoxCtrl* newSensorBoxCtrl();
android::ISerialCtrl* newSerialCtrl();
android::ISmartPenModeCtrl* newSmartPenModeCtrl();
android::ISourceCtrl* newSourceCtrl();
android::ISystemCtrl* newSystemCtrl();
android::ITxbCtrl* newTxbCtrl();
android::IVgaAdjust* newVgaAdjust();
android::IXbugCtrl* newXbugCtrl();
android::ILandscapeCtrl* newLandscapeCtrl();
android::ITouchCtrl* newTouchCtrl();
android::ISoundScreenAngleCtrl* newSoundScreenAngleCtrl();
android::IAiNoiseCtrl* newAiNoiseCtrl();
android::IDevicePortCtrl* newDevicePortCtrl();
android::ITeaDspCtrl* newTeaDspCtrl();
android::IGpioCtrl* newGpioCtrl();
android::ISuspendCtrl* newSuspendCtrl();
android::IMicrophoneCtrl* newMicrophoneCtrl();
android::IDebugCtrl* newDebugCtrl();

}  // namespace sim
