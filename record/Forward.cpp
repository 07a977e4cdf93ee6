// Written by record/forward.cmake from the declarations of service/ (338 operations);
// the test record_forward compares. Rewrite it with:
//   cmake -DSERVICE_DIR=service -DOUTPUT=record/Forward.cpp -P record/forward.cmake

#include "Pass.h"
#include "service/IAiNoiseCtrl.h"
#include "service/IAnionCtrl.h"
#include "service/IAtCfgControl.h"
#include "service/IAudioCtrl.h"
#include "service/IAvManagerCtrl.h"
#include "service/IBacklightCtrl.h"
#include "service/IBluetoothCtrl.h"
#include "service/IBrelManager.h"
#include "service/IBurnKeyCtrl.h"
#include "service/IBurnMacCtrl.h"
#include "service/ICameraCtrl.h"
#include "service/IDebugCtrl.h"
#include "service/IDeviceCtrl.h"
#include "service/IDevicePortCtrl.h"
#include "service/IExtendDisplayCtrl.h"
#include "service/IFwTouchCtrl.h"
#include "service/IFwUpgrade.h"
#include "service/IGpioCtrl.h"
#include "service/IIoBoxCtrl.h"
#include "service/IKeyboardCtrl.h"
#include "service/ILandscapeCtrl.h"
#include "service/IMicrophoneCtrl.h"
#include "service/INetworkCtrl.h"
#include "service/IPQCtrl.h"
#include "service/IPcModuleCtrl.h"
#include "service/IPmsCtrl.h"
#include "service/IProjectId.h"
#include "service/IRGBLedCtrl.h"
#include "service/IRemoteCtrl.h"
#include "service/IRs232Ctrl.h"
#include "service/ISensorBoxCtrl.h"
#include "service/ISerialCtrl.h"
#include "service/ISmartPenModeCtrl.h"
#include "service/ISoundScreenAngleCtrl.h"
#include "service/ISourceCtrl.h"
#include "service/ISuspendCtrl.h"
#include "service/ISystemCtrl.h"
#include "service/ITeaDspCtrl.h"
#include "service/ITouchCtrl.h"
#include "service/ITxbCtrl.h"
#include "service/IVgaAdjust.h"
#include "service/IXbugCtrl.h"

namespace record {

namespace {

using namespace android;

struct RecAiNoiseCtrl : Pass<IAiNoiseCtrl> { using Pass::Pass;
    bool setAiNoise(float value) override { return pass(__func__, &IAiNoiseCtrl::setAiNoise, value); }
    float getAiNoise() override { return pass(__func__, &IAiNoiseCtrl::getAiNoise); }
};
struct RecAnionCtrl : Pass<IAnionCtrl> { using Pass::Pass;
    int setAnionStatus(int status) override { return pass(__func__, &IAnionCtrl::setAnionStatus, status); }
};
struct RecAtCfgControl : Pass<IAtCfgControl> { using Pass::Pass;
    String16 readWidevinevKey() override { return pass(__func__, &IAtCfgControl::readWidevinevKey); }
    bool installWidevineKey(const String16& keyText) override { return pass(__func__, &IAtCfgControl::installWidevineKey, keyText); }
    bool deleteWidevineKey() override { return pass(__func__, &IAtCfgControl::deleteWidevineKey); }
    String16 readAttestationKey() override { return pass(__func__, &IAtCfgControl::readAttestationKey); }
    bool installAttestationKey(const String16& keyText) override { return pass(__func__, &IAtCfgControl::installAttestationKey, keyText); }
    bool deleteAttestationKey() override { return pass(__func__, &IAtCfgControl::deleteAttestationKey); }
};
struct RecAudioCtrl : Pass<IAudioCtrl> { using Pass::Pass;
    int getEQMode() override { return pass(__func__, &IAudioCtrl::getEQMode); }
    int setEQMode(int mode) override { return pass(__func__, &IAudioCtrl::setEQMode, mode); }
    int getAudioOutMode() override { return pass(__func__, &IAudioCtrl::getAudioOutMode); }
    int setAudioOutMode(int mode) override { return pass(__func__, &IAudioCtrl::setAudioOutMode, mode); }
    bool setAudioLineOutEnabled(int enable) override { return pass(__func__, &IAudioCtrl::setAudioLineOutEnabled, enable); }
    bool setAudioPathInternalEnabled(int enable) override { return pass(__func__, &IAudioCtrl::setAudioPathInternalEnabled, enable); }
    bool setSPDIFOutEnabled(int enable) override { return pass(__func__, &IAudioCtrl::setSPDIFOutEnabled, enable); }
    bool isMicrophoneAvaliable() override { return pass(__func__, &IAudioCtrl::isMicrophoneAvaliable); }
    bool getOtgMicState() override { return pass(__func__, &IAudioCtrl::getOtgMicState); }
    bool setOtgMicState(bool state) override { return pass(__func__, &IAudioCtrl::setOtgMicState, state); }
    int getSubwooferOutProfile() override { return pass(__func__, &IAudioCtrl::getSubwooferOutProfile); }
    int setSubwooferOutProfile(int profile) override { return pass(__func__, &IAudioCtrl::setSubwooferOutProfile, profile); }
    int getAudioGain(int module) override { return pass(__func__, &IAudioCtrl::getAudioGain, module); }
    int setAudioGain(int module, int value) override { return pass(__func__, &IAudioCtrl::setAudioGain, module, value); }
    int getAudioOutEnableStatus(int module) override { return pass(__func__, &IAudioCtrl::getAudioOutEnableStatus, module); }
    int setAudioOutEnableStatus(int module, bool status) override { return pass(__func__, &IAudioCtrl::setAudioOutEnableStatus, module, status); }
    int setTrebleOneChannelMute(int module, int status) override { return pass(__func__, &IAudioCtrl::setTrebleOneChannelMute, module, status); }
    int setBassOneChannelMute(int module, int status) override { return pass(__func__, &IAudioCtrl::setBassOneChannelMute, module, status); }
    int getAudioDelay(int channel) override { return pass(__func__, &IAudioCtrl::getAudioDelay, channel); }
    int setAudioDelay(int channel, int value) override { return pass(__func__, &IAudioCtrl::setAudioDelay, channel, value); }
    bool getLineInConnectStatus() override { return pass(__func__, &IAudioCtrl::getLineInConnectStatus); }
};
struct RecAvManagerCtrl : Pass<IAvManagerCtrl> { using Pass::Pass;
    void init() override { return pass(__func__, &IAvManagerCtrl::init); }
    void release() override { return pass(__func__, &IAvManagerCtrl::release); }
    void setDspVolume(int channel, int volume) override { return pass(__func__, &IAvManagerCtrl::setDspVolume, channel, volume); }
    void setDspUsbEnable(bool enable) override { return pass(__func__, &IAvManagerCtrl::setDspUsbEnable, enable); }
    bool getDspUsbEnable() override { return pass(__func__, &IAvManagerCtrl::getDspUsbEnable); }
    void setSpkOutPutMode(int mode) override { return pass(__func__, &IAvManagerCtrl::setSpkOutPutMode, mode); }
    int getSpkOutPutMode() override { return pass(__func__, &IAvManagerCtrl::getSpkOutPutMode); }
    bool setMicAlgorithm(int type, bool enable) override { return pass(__func__, &IAvManagerCtrl::setMicAlgorithm, type, enable); }
    bool getMicAlgorithm(int type) override { return pass(__func__, &IAvManagerCtrl::getMicAlgorithm, type); }
    bool setMicAlgorithmParameters(int type, int value) override { return pass(__func__, &IAvManagerCtrl::setMicAlgorithmParameters, type, value); }
    bool setMicVolume(int vol) override { return pass(__func__, &IAvManagerCtrl::setMicVolume, vol); }
    int getMicVolume() override { return pass(__func__, &IAvManagerCtrl::getMicVolume); }
    bool isMicAvailable() override { return pass(__func__, &IAvManagerCtrl::isMicAvailable); }
    bool enableMic(bool enable) override { return pass(__func__, &IAvManagerCtrl::enableMic, enable); }
    String16 getSN() override { return pass(__func__, &IAvManagerCtrl::getSN); }
    bool setCameraZoomIn() override { return pass(__func__, &IAvManagerCtrl::setCameraZoomIn); }
    bool setCameraZoomOut() override { return pass(__func__, &IAvManagerCtrl::setCameraZoomOut); }
    bool setCameraMoveUp() override { return pass(__func__, &IAvManagerCtrl::setCameraMoveUp); }
    bool setCameraMoveDown() override { return pass(__func__, &IAvManagerCtrl::setCameraMoveDown); }
    bool setCameraMoveLeft() override { return pass(__func__, &IAvManagerCtrl::setCameraMoveLeft); }
    bool setCameraMoveRight() override { return pass(__func__, &IAvManagerCtrl::setCameraMoveRight); }
    bool setCameraPresetPosition(int position) override { return pass(__func__, &IAvManagerCtrl::setCameraPresetPosition, position); }
    int getCameraPresetPosition() override { return pass(__func__, &IAvManagerCtrl::getCameraPresetPosition); }
    bool gotoCameraPresetPosition(int position) override { return pass(__func__, &IAvManagerCtrl::gotoCameraPresetPosition, position); }
    bool delCameraPresetPosition(int position) override { return pass(__func__, &IAvManagerCtrl::delCameraPresetPosition, position); }
    int transferDoaData(int doa) override { return pass(__func__, &IAvManagerCtrl::transferDoaData, doa); }
    int setCameraPtzMode(int mode) override { return pass(__func__, &IAvManagerCtrl::setCameraPtzMode, mode); }
    int getCameraPtzMode() override { return pass(__func__, &IAvManagerCtrl::getCameraPtzMode); }
    String16 getDspOtaModule() override { return pass(__func__, &IAvManagerCtrl::getDspOtaModule); }
    AvSignalFormat get_av_signal_format() override { return pass(__func__, &IAvManagerCtrl::get_av_signal_format); }
    bool setCameraZoomReset() override { return pass(__func__, &IAvManagerCtrl::setCameraZoomReset); }
    int setCameraPipMode(int mode) override { return pass(__func__, &IAvManagerCtrl::setCameraPipMode, mode); }
    int getCameraPipMode() override { return pass(__func__, &IAvManagerCtrl::getCameraPipMode); }
    int setCameraAisrStatus(int mode) override { return pass(__func__, &IAvManagerCtrl::setCameraAisrStatus, mode); }
    int getCameraAisrStatus() override { return pass(__func__, &IAvManagerCtrl::getCameraAisrStatus); }
    int setCameraHdr(int mode) override { return pass(__func__, &IAvManagerCtrl::setCameraHdr, mode); }
    int getCameraHdr() override { return pass(__func__, &IAvManagerCtrl::getCameraHdr); }
};
struct RecBacklightCtrl : Pass<IBacklightCtrl> { using Pass::Pass;
    int getScreenBrightness() override { return pass(__func__, &IBacklightCtrl::getScreenBrightness); }
    int setScreenBrightness(int value) override { return pass(__func__, &IBacklightCtrl::setScreenBrightness, value); }
    int getScreenMaxBrightness() override { return pass(__func__, &IBacklightCtrl::getScreenMaxBrightness); }
    int setScreenMaxBrightness(int value) override { return pass(__func__, &IBacklightCtrl::setScreenMaxBrightness, value); }
};
struct RecBluetoothCtrl : Pass<IBluetoothCtrl> { using Pass::Pass;
    bool isBleWakeup() override { return pass(__func__, &IBluetoothCtrl::isBleWakeup); }
    void setBleWakeup(bool enable) override { return pass(__func__, &IBluetoothCtrl::setBleWakeup, enable); }
};
struct RecBurnKeyCtrl : Pass<IBurnKeyCtrl> { using Pass::Pass;
    bool getSupportBurnKeyList(std::vector<EntitySwKey>& keyList) override { return pass(__func__, &IBurnKeyCtrl::getSupportBurnKeyList, sim::out("keyList", keyList)); }
    bool setBurnKey(int mode, const String16& keypath) override { return pass(__func__, &IBurnKeyCtrl::setBurnKey, mode, keypath); }
    bool setCleanBurnKey(int mode) override { return pass(__func__, &IBurnKeyCtrl::setCleanBurnKey, mode); }
    String16 getBurnKey(int mode) override { return pass(__func__, &IBurnKeyCtrl::getBurnKey, mode); }
    String16 getBurnKeyVersion(int mode) override { return pass(__func__, &IBurnKeyCtrl::getBurnKeyVersion, mode); }
};
struct RecBurnMacCtrl : Pass<IBurnMacCtrl> { using Pass::Pass;
    bool getSupportBurnMacList(std::vector<EntitySwMac>& macList) override { return pass(__func__, &IBurnMacCtrl::getSupportBurnMacList, sim::out("macList", macList)); }
    bool setBurnMac(int macType, const String16& macValue) override { return pass(__func__, &IBurnMacCtrl::setBurnMac, macType, macValue); }
    bool setBurnMac2(int macType, const char* macValue, int macExtra) override { return pass(__func__, &IBurnMacCtrl::setBurnMac2, macType, macValue, macExtra); }
    String16 getBurnMac(int macType) override { return pass(__func__, &IBurnMacCtrl::getBurnMac, macType); }
};
struct RecCameraCtrl : Pass<ICameraCtrl> { using Pass::Pass;
    bool getCameraEnable() override { return pass(__func__, &ICameraCtrl::getCameraEnable); }
    bool setCameraEnable(bool state) override { return pass(__func__, &ICameraCtrl::setCameraEnable, state); }
    void getCameraDeviceInfo(int camera_id, BrelCameraInfo& info) override { return pass(__func__, &ICameraCtrl::getCameraDeviceInfo, camera_id, sim::out("info", info)); }
};
struct RecDebugCtrl : Pass<IDebugCtrl> { using Pass::Pass;
    bool getSuperRootState() override { return pass(__func__, &IDebugCtrl::getSuperRootState); }
    bool setSuperRootState(const char* state) override { return pass(__func__, &IDebugCtrl::setSuperRootState, state); }
};
struct RecDeviceCtrl : Pass<IDeviceCtrl> { using Pass::Pass;
    int getDeviceList() override { return pass(__func__, &IDeviceCtrl::getDeviceList); }
    int getSecondDeviceList() override { return pass(__func__, &IDeviceCtrl::getSecondDeviceList); }
    int getThirdDeviceList() override { return pass(__func__, &IDeviceCtrl::getThirdDeviceList); }
    String16 getBoardName() override { return pass(__func__, &IDeviceCtrl::getBoardName); }
    int setUsbswSideChannel(int channelID) override { return pass(__func__, &IDeviceCtrl::setUsbswSideChannel, channelID); }
    int getUsbswSideChannel() override { return pass(__func__, &IDeviceCtrl::getUsbswSideChannel); }
    int setUsbswAllChannel(int channelID) override { return pass(__func__, &IDeviceCtrl::setUsbswAllChannel, channelID); }
    int getUsbswAllChannel() override { return pass(__func__, &IDeviceCtrl::getUsbswAllChannel); }
    int setUsbswTouchinChannel(int channelID) override { return pass(__func__, &IDeviceCtrl::setUsbswTouchinChannel, channelID); }
    int getUsbswTouchinChannel() override { return pass(__func__, &IDeviceCtrl::getUsbswTouchinChannel); }
    int setUsbswPipChannel(int channelID) override { return pass(__func__, &IDeviceCtrl::setUsbswPipChannel, channelID); }
    int getUsbswPipChannel() override { return pass(__func__, &IDeviceCtrl::getUsbswPipChannel); }
    void setDevicePower(int powerId, bool powerOn) override { return pass(__func__, &IDeviceCtrl::setDevicePower, powerId, powerOn); }
    String16 getNfcTagMsg() override { return pass(__func__, &IDeviceCtrl::getNfcTagMsg); }
    bool setNfcTagMsg(String16 tagMsg) override { return pass(__func__, &IDeviceCtrl::setNfcTagMsg, tagMsg); }
};
struct RecDevicePortCtrl : Pass<IDevicePortCtrl> { using Pass::Pass;
    int setDevicePortEnabled(const char* port, bool enabled) override { return pass(__func__, &IDevicePortCtrl::setDevicePortEnabled, port, enabled); }
    int getDevicePortList(std::vector<String16>& ports) override { return pass(__func__, &IDevicePortCtrl::getDevicePortList, sim::out("ports", ports)); }
};
struct RecExtendDisplayCtrl : Pass<IExtendDisplayCtrl> { using Pass::Pass;
    int getTypecOutHDCPStatus() override { return pass(__func__, &IExtendDisplayCtrl::getTypecOutHDCPStatus); }
    void setTypecOutHDCPStatus(bool on) override { return pass(__func__, &IExtendDisplayCtrl::setTypecOutHDCPStatus, on); }
    int getExtendDisplayHDCPStatus() override { return pass(__func__, &IExtendDisplayCtrl::getExtendDisplayHDCPStatus); }
    void setExtendDisplayHDCPStatus(bool on) override { return pass(__func__, &IExtendDisplayCtrl::setExtendDisplayHDCPStatus, on); }
    void setExtendDisplayEnabled(bool on) override { return pass(__func__, &IExtendDisplayCtrl::setExtendDisplayEnabled, on); }
    bool getExtendDisplayEnabled() override { return pass(__func__, &IExtendDisplayCtrl::getExtendDisplayEnabled); }
    void setHdmiInOutEnabled(bool on) override { return pass(__func__, &IExtendDisplayCtrl::setHdmiInOutEnabled, on); }
    bool getHdmiInOutEnabled() override { return pass(__func__, &IExtendDisplayCtrl::getHdmiInOutEnabled); }
    std::vector<std::string> getExtendDisplayUserResolutionList() override { return pass(__func__, &IExtendDisplayCtrl::getExtendDisplayUserResolutionList); }
    void setExtendDisplayResolution(const String16& resolution) override { return pass(__func__, &IExtendDisplayCtrl::setExtendDisplayResolution, resolution); }
    String16 getExtendDisplayResolution() override { return pass(__func__, &IExtendDisplayCtrl::getExtendDisplayResolution); }
};
struct RecFwTouchCtrl : Pass<IFwTouchCtrl> { using Pass::Pass;
    void getFwTouchList(std::vector<EntityFwTouch>& list) override { return pass(__func__, &IFwTouchCtrl::getFwTouchList, sim::out("list", list)); }
    void getFwTouchDriverInfoList(std::vector<EntityFwTouchDriver>& list) override { return pass(__func__, &IFwTouchCtrl::getFwTouchDriverInfoList, sim::out("list", list)); }
};
struct RecFwUpgrade : Pass<IFwUpgrade> { using Pass::Pass;
    bool setFirmwareUpgrade(int type, const String16& file) override { return pass(__func__, &IFwUpgrade::setFirmwareUpgrade, type, file); }
    String16 getMcuBinNameToUp(int type) override { return pass(__func__, &IFwUpgrade::getMcuBinNameToUp, type); }
    String16 getFwVersion(int type) override { return pass(__func__, &IFwUpgrade::getFwVersion, type); }
    String16 getFwOtakey(int type) override { return pass(__func__, &IFwUpgrade::getFwOtakey, type); }
    String16 getFwInfoTypecList() override { return pass(__func__, &IFwUpgrade::getFwInfoTypecList); }
    bool getFwMcuList(std::vector<EntityFwInfoMcu>& mcu_list) override { return pass(__func__, &IFwUpgrade::getFwMcuList, sim::out("mcu_list", mcu_list)); }
    String16 getFwTargetVersion(int type) override { return pass(__func__, &IFwUpgrade::getFwTargetVersion, type); }
    String16 getFwTargetBinPath(int type) override { return pass(__func__, &IFwUpgrade::getFwTargetBinPath, type); }
};
struct RecGpioCtrl : Pass<IGpioCtrl> { using Pass::Pass;
    int setGpioDirInput(unsigned int gpio_no) override { return pass(__func__, &IGpioCtrl::setGpioDirInput, gpio_no); }
    int setGpioDirOutput(unsigned int gpio_no) override { return pass(__func__, &IGpioCtrl::setGpioDirOutput, gpio_no); }
    int getGpioDirBit(unsigned int gpio_no, int& is_input) override { return pass(__func__, &IGpioCtrl::getGpioDirBit, gpio_no, sim::out("is_input", is_input)); }
    int writeGpioBit(unsigned int gpio_no, int high_volt) override { return pass(__func__, &IGpioCtrl::writeGpioBit, gpio_no, high_volt); }
    int readGpioBit(unsigned int gpio_no, int& high_volt) override { return pass(__func__, &IGpioCtrl::readGpioBit, gpio_no, sim::out("high_volt", high_volt)); }
    int readGpioOutBit(unsigned int gpio_no, int& high_volt) override { return pass(__func__, &IGpioCtrl::readGpioOutBit, gpio_no, sim::out("high_volt", high_volt)); }
};
struct RecIoBoxCtrl : Pass<IIoBoxCtrl> { using Pass::Pass;
};
struct RecKeyboardCtrl : Pass<IKeyboardCtrl> { using Pass::Pass;
    bool getKeyboardByName(const String16& name) override { return pass(__func__, &IKeyboardCtrl::getKeyboardByName, name); }
    bool getKeyboardByID(int vid, int pid) override { return pass(__func__, &IKeyboardCtrl::getKeyboardByID, vid, pid); }
};
struct RecLandscapeCtrl : Pass<ILandscapeCtrl> { using Pass::Pass;
    void setLandscapeAppList(const std::vector<std::string>& list) override { return pass(__func__, &ILandscapeCtrl::setLandscapeAppList, list); }
    std::vector<std::string> getLandscapeApp() override { return pass(__func__, &ILandscapeCtrl::getLandscapeApp); }
};
struct RecMicrophoneCtrl : Pass<IMicrophoneCtrl> { using Pass::Pass;
    bool isBuildInMicEnabled(int mic_type) override { return pass(__func__, &IMicrophoneCtrl::isBuildInMicEnabled, mic_type); }
    bool setBuildInMicEnabled(int mic_type, bool state) override { return pass(__func__, &IMicrophoneCtrl::setBuildInMicEnabled, mic_type, state); }
};
struct RecNetworkCtrl : Pass<INetworkCtrl> { using Pass::Pass;
    String16 getAntennaRssi(int antenna) override { return pass(__func__, &INetworkCtrl::getAntennaRssi, antenna); }
    int setMcuDhcpEnable(bool enable) override { return pass(__func__, &INetworkCtrl::setMcuDhcpEnable, enable); }
    int setMcuDhcpIp(const String16& ip) override { return pass(__func__, &INetworkCtrl::setMcuDhcpIp, ip); }
    int setMcuDhcpGw(const String16& gateway) override { return pass(__func__, &INetworkCtrl::setMcuDhcpGw, gateway); }
    int setMcuDhcpMsk(const String16& mask) override { return pass(__func__, &INetworkCtrl::setMcuDhcpMsk, mask); }
    bool SetWOLEnable(bool enable) override { return pass(__func__, &INetworkCtrl::SetWOLEnable, enable); }
    bool GetWOLEnable() override { return pass(__func__, &INetworkCtrl::GetWOLEnable); }
    bool SetWOWEnable(bool enable) override { return pass(__func__, &INetworkCtrl::SetWOWEnable, enable); }
    bool GetWOWEnable() override { return pass(__func__, &INetworkCtrl::GetWOWEnable); }
    bool getWifiDongleStatus() override { return pass(__func__, &INetworkCtrl::getWifiDongleStatus); }
    bool setMcuToControlMonitorNetwork(bool enable) override { return pass(__func__, &INetworkCtrl::setMcuToControlMonitorNetwork, enable); }
    bool disableApUsbDevice(bool disable) override { return pass(__func__, &INetworkCtrl::disableApUsbDevice, disable); }
    bool setSharingDirection(bool direction) override { return pass(__func__, &INetworkCtrl::setSharingDirection, direction); }
    bool getSharingDirection() override { return pass(__func__, &INetworkCtrl::getSharingDirection); }
    bool setAndroidToPcSharing(bool enable) override { return pass(__func__, &INetworkCtrl::setAndroidToPcSharing, enable); }
    bool getAndroidToPcSharing() override { return pass(__func__, &INetworkCtrl::getAndroidToPcSharing); }
    bool setHotspotSharing(bool enable) override { return pass(__func__, &INetworkCtrl::setHotspotSharing, enable); }
    bool getHotspotSharing() override { return pass(__func__, &INetworkCtrl::getHotspotSharing); }
};
struct RecPQCtrl : Pass<IPQCtrl> { using Pass::Pass;
    bool getDCREnable() override { return pass(__func__, &IPQCtrl::getDCREnable); }
    int setDCREnable(bool enable) override { return pass(__func__, &IPQCtrl::setDCREnable, enable); }
    bool getDBCEnable() override { return pass(__func__, &IPQCtrl::getDBCEnable); }
    int setDBCEnable(bool enable) override { return pass(__func__, &IPQCtrl::setDBCEnable, enable); }
    int getPQRGain() override { return pass(__func__, &IPQCtrl::getPQRGain); }
    int setPQRGain(int value) override { return pass(__func__, &IPQCtrl::setPQRGain, value); }
    int getPQGGain() override { return pass(__func__, &IPQCtrl::getPQGGain); }
    int setPQGGain(int value) override { return pass(__func__, &IPQCtrl::setPQGGain, value); }
    int getPQBGain() override { return pass(__func__, &IPQCtrl::getPQBGain); }
    int setPQBGain(int value) override { return pass(__func__, &IPQCtrl::setPQBGain, value); }
    int getColorTemp() override { return pass(__func__, &IPQCtrl::getColorTemp); }
    int setColorTemp(int value) override { return pass(__func__, &IPQCtrl::setColorTemp, value); }
    int getSaturation() override { return pass(__func__, &IPQCtrl::getSaturation); }
    int setSaturation(int value) override { return pass(__func__, &IPQCtrl::setSaturation, value); }
    int getSharpness() override { return pass(__func__, &IPQCtrl::getSharpness); }
    int setSharpness(int value) override { return pass(__func__, &IPQCtrl::setSharpness, value); }
    int getContrast() override { return pass(__func__, &IPQCtrl::getContrast); }
    int setContrast(int value) override { return pass(__func__, &IPQCtrl::setContrast, value); }
    int getHue() override { return pass(__func__, &IPQCtrl::getHue); }
    int setHue(int value) override { return pass(__func__, &IPQCtrl::setHue, value); }
    int getPictureMode() override { return pass(__func__, &IPQCtrl::getPictureMode); }
    int setPictureMode(int value) override { return pass(__func__, &IPQCtrl::setPictureMode, value); }
    int getGammaMode() override { return pass(__func__, &IPQCtrl::getGammaMode); }
    int setGammaMode(int value) override { return pass(__func__, &IPQCtrl::setGammaMode, value); }
    int getBrightness() override { return pass(__func__, &IPQCtrl::getBrightness); }
    int setBrightness(int value) override { return pass(__func__, &IPQCtrl::setBrightness, value); }
    int getPQRGainWithoutSave() override { return pass(__func__, &IPQCtrl::getPQRGainWithoutSave); }
    int setPQRGainWithoutSave(int value) override { return pass(__func__, &IPQCtrl::setPQRGainWithoutSave, value); }
    int getPQGGainWithoutSave() override { return pass(__func__, &IPQCtrl::getPQGGainWithoutSave); }
    int setPQGGainWithoutSave(int value) override { return pass(__func__, &IPQCtrl::setPQGGainWithoutSave, value); }
    int getPQBGainWithoutSave() override { return pass(__func__, &IPQCtrl::getPQBGainWithoutSave); }
    int setPQBGainWithoutSave(int value) override { return pass(__func__, &IPQCtrl::setPQBGainWithoutSave, value); }
    int setPresetColorTempMode(int value1, int value2, int value3, int value4, int value5) override { return pass(__func__, &IPQCtrl::setPresetColorTempMode, value1, value2, value3, value4, value5); }
    PresetColorTempRgb getPresetColorTempMode(int path, int index) override { return pass(__func__, &IPQCtrl::getPresetColorTempMode, path, index); }
    int resetWhiteBalance() override { return pass(__func__, &IPQCtrl::resetWhiteBalance); }
    int getEyePqmodeindex() override { return pass(__func__, &IPQCtrl::getEyePqmodeindex); }
    int getAspectMode() override { return pass(__func__, &IPQCtrl::getAspectMode); }
    bool setAspectMode(int mode) override { return pass(__func__, &IPQCtrl::setAspectMode, mode); }
};
struct RecPcModuleCtrl : Pass<IPcModuleCtrl> { using Pass::Pass;
    int getPcState() override { return pass(__func__, &IPcModuleCtrl::getPcState); }
    int setPcSwitchOn() override { return pass(__func__, &IPcModuleCtrl::setPcSwitchOn); }
    int setPcSwitchOff() override { return pass(__func__, &IPcModuleCtrl::setPcSwitchOff); }
    int setPcRecovery() override { return pass(__func__, &IPcModuleCtrl::setPcRecovery); }
    std::vector<_EnumPcBootMode> getSupportPcBootModeList() override { return pass(__func__, &IPcModuleCtrl::getSupportPcBootModeList); }
    bool setPcBootMode(int mode) override { return pass(__func__, &IPcModuleCtrl::setPcBootMode, mode); }
    int getPcBootMode() override { return pass(__func__, &IPcModuleCtrl::getPcBootMode); }
};
struct RecPmsCtrl : Pass<IPmsCtrl> { using Pass::Pass;
    int getWakeupSrc() override { return pass(__func__, &IPmsCtrl::getWakeupSrc); }
    int getWakeupSrcFromUboot() override { return pass(__func__, &IPmsCtrl::getWakeupSrcFromUboot); }
    String16 readAssetData(int first, int second) override { return pass(__func__, &IPmsCtrl::readAssetData, first, second); }
    bool setPmsWakeupSources(const std::vector<_BrelEnumInputSourceId_>& sources) override { return pass(__func__, &IPmsCtrl::setPmsWakeupSources, sources); }
};
struct RecProjectId : Pass<IProjectId> { using Pass::Pass;
    void setProjectIdByIndex(int projectId) override { return pass(__func__, &IProjectId::setProjectIdByIndex, projectId); }
    int getProjectIdIndex() override { return pass(__func__, &IProjectId::getProjectIdIndex); }
    bool getEyePqFixedEnable() override { return pass(__func__, &IProjectId::getEyePqFixedEnable); }
    String16 getEyePqFixedValue() override { return pass(__func__, &IProjectId::getEyePqFixedValue); }
};
struct RecRGBLedCtrl : Pass<IRGBLedCtrl> { using Pass::Pass;
    void setIRInputState() override { return pass(__func__, &IRGBLedCtrl::setIRInputState); }
    void setPowerLedEnableState(int state) override { return pass(__func__, &IRGBLedCtrl::setPowerLedEnableState, state); }
    void setLedOtaState(int state) override { return pass(__func__, &IRGBLedCtrl::setLedOtaState, state); }
    void setDiagnosisState(int state) override { return pass(__func__, &IRGBLedCtrl::setDiagnosisState, state); }
    void setPowerStandbyState(int state) override { return pass(__func__, &IRGBLedCtrl::setPowerStandbyState, state); }
    void setLedOn(int led) override { return pass(__func__, &IRGBLedCtrl::setLedOn, led); }
    void setLedOff(int led) override { return pass(__func__, &IRGBLedCtrl::setLedOff, led); }
    bool setVaLedState(int state) override { return pass(__func__, &IRGBLedCtrl::setVaLedState, state); }
    int getVaLedState() override { return pass(__func__, &IRGBLedCtrl::getVaLedState); }
};
struct RecRemoteCtrl : Pass<IRemoteCtrl> { using Pass::Pass;
    bool disableRemoteCtrl() override { return pass(__func__, &IRemoteCtrl::disableRemoteCtrl); }
    bool enableRemoteCtrl() override { return pass(__func__, &IRemoteCtrl::enableRemoteCtrl); }
    String16 getParameter(const String16& key) override { return pass(__func__, &IRemoteCtrl::getParameter, key); }
    bool setParameter(const String16& key, const String16& value) override { return pass(__func__, &IRemoteCtrl::setParameter, key, value); }
};
struct RecRs232Ctrl : Pass<IRs232Ctrl> { using Pass::Pass;
    String16 getSmartRs232FrontUsb(int selector) override { return pass(__func__, &IRs232Ctrl::getSmartRs232FrontUsb, selector); }
    String16 getSmartRs232SideUsb(int selector) override { return pass(__func__, &IRs232Ctrl::getSmartRs232SideUsb, selector); }
    String16 getSmartRs232EthMac(int selector) override { return pass(__func__, &IRs232Ctrl::getSmartRs232EthMac, selector); }
    bool getATRs232TestResult() override { return pass(__func__, &IRs232Ctrl::getATRs232TestResult); }
    String16 getEmmcSize() override { return pass(__func__, &IRs232Ctrl::getEmmcSize); }
    String16 getRamSize() override { return pass(__func__, &IRs232Ctrl::getRamSize); }
};
struct RecSensorBoxCtrl : Pass<ISensorBoxCtrl> { using Pass::Pass;
};
struct RecSerialCtrl : Pass<ISerialCtrl> { using Pass::Pass;
    void SetSerialSwitch(int device, bool enable, int baudrate) override { return pass(__func__, &ISerialCtrl::SetSerialSwitch, device, enable, baudrate); }
    int getRS232Baudrate() override { return pass(__func__, &ISerialCtrl::getRS232Baudrate); }
    int getRS232Port() override { return pass(__func__, &ISerialCtrl::getRS232Port); }
    void setSerialDeviceId(int device, int id) override { return pass(__func__, &ISerialCtrl::setSerialDeviceId, device, id); }
    int getSerialDeviceId(int device) override { return pass(__func__, &ISerialCtrl::getSerialDeviceId, device); }
};
struct RecSmartPenModeCtrl : Pass<ISmartPenModeCtrl> { using Pass::Pass;
    std::vector<_EnumSmartPenMode> getSupportSmartPenModeList() override { return pass(__func__, &ISmartPenModeCtrl::getSupportSmartPenModeList); }
    bool setSmartPenMode(int mode) override { return pass(__func__, &ISmartPenModeCtrl::setSmartPenMode, mode); }
    int getSmartPenMode() override { return pass(__func__, &ISmartPenModeCtrl::getSmartPenMode); }
};
struct RecSoundScreenAngleCtrl : Pass<ISoundScreenAngleCtrl> { using Pass::Pass;
    bool setSoundScreenAngle(int start_angle, int end_angle) override { return pass(__func__, &ISoundScreenAngleCtrl::setSoundScreenAngle, start_angle, end_angle); }
    SoundScreenAngle getSoundScreenAngle() override { return pass(__func__, &ISoundScreenAngleCtrl::getSoundScreenAngle); }
};
struct RecSourceCtrl : Pass<ISourceCtrl> { using Pass::Pass;
    int getChannelList() override { return pass(__func__, &ISourceCtrl::getChannelList); }
    int getCurInputSource() override { return pass(__func__, &ISourceCtrl::getCurInputSource); }
    int setCurInputSource(int sourceId) override { return pass(__func__, &ISourceCtrl::setCurInputSource, sourceId); }
    void setHdmiRxEdidVersion(int sourceId, int version) override { return pass(__func__, &ISourceCtrl::setHdmiRxEdidVersion, sourceId, version); }
    int getHdmiRxEdidVersion(int sourceId) override { return pass(__func__, &ISourceCtrl::getHdmiRxEdidVersion, sourceId); }
    int setHdmiStandbyEn(bool enable) override { return pass(__func__, &ISourceCtrl::setHdmiStandbyEn, enable); }
    int getHdmiStandbyEn() override { return pass(__func__, &ISourceCtrl::getHdmiStandbyEn); }
};
struct RecSuspendCtrl : Pass<ISuspendCtrl> { using Pass::Pass;
    bool getSuspendStatus() override { return pass(__func__, &ISuspendCtrl::getSuspendStatus); }
    int setSuspendStatus(bool suspend) override { return pass(__func__, &ISuspendCtrl::setSuspendStatus, suspend); }
};
struct RecSystemCtrl : Pass<ISystemCtrl> { using Pass::Pass;
    int getSelinuxMode() override { return pass(__func__, &ISystemCtrl::getSelinuxMode); }
    int getSystemSetting() override { return pass(__func__, &ISystemCtrl::getSystemSetting); }
    bool resetBootLogo() override { return pass(__func__, &ISystemCtrl::resetBootLogo); }
    String16 getCPUtemperature() override { return pass(__func__, &ISystemCtrl::getCPUtemperature); }
    bool isCtsRunning() override { return pass(__func__, &ISystemCtrl::isCtsRunning); }
    void setCtsRunning(bool running) override { return pass(__func__, &ISystemCtrl::setCtsRunning, running); }
    bool setDebugUartSwitch(int uartSwitch) override { return pass(__func__, &ISystemCtrl::setDebugUartSwitch, uartSwitch); }
    int getDebugUartSwitch() override { return pass(__func__, &ISystemCtrl::getDebugUartSwitch); }
    bool setAlarmTime(int time) override { return pass(__func__, &ISystemCtrl::setAlarmTime, time); }
    bool setIrInPort(int port) override { return pass(__func__, &ISystemCtrl::setIrInPort, port); }
    int getIrInPort() override { return pass(__func__, &ISystemCtrl::getIrInPort); }
    bool getDeviceAVBState() override { return pass(__func__, &ISystemCtrl::getDeviceAVBState); }
    bool setDeviceAVBState(bool state) override { return pass(__func__, &ISystemCtrl::setDeviceAVBState, state); }
    bool setUsbAdbState(bool state) override { return pass(__func__, &ISystemCtrl::setUsbAdbState, state); }
    bool getUsbAdbState() override { return pass(__func__, &ISystemCtrl::getUsbAdbState); }
    bool isPirWakeupEnable() override { return pass(__func__, &ISystemCtrl::isPirWakeupEnable); }
    bool setPirWakeupEnable(bool enable) override { return pass(__func__, &ISystemCtrl::setPirWakeupEnable, enable); }
    int getPirWakeupDelay() override { return pass(__func__, &ISystemCtrl::getPirWakeupDelay); }
    bool setPirWakeupDelay(bool delay) override { return pass(__func__, &ISystemCtrl::setPirWakeupDelay, delay); }
    bool isRemoteCtrlWakeupEnable() override { return pass(__func__, &ISystemCtrl::isRemoteCtrlWakeupEnable); }
    bool setRemoteCtrlWakeupEnable(bool enable) override { return pass(__func__, &ISystemCtrl::setRemoteCtrlWakeupEnable, enable); }
    bool setRS232WakeupEnable(bool enable) override { return pass(__func__, &ISystemCtrl::setRS232WakeupEnable, enable); }
    bool isRs232WakeupEnable() override { return pass(__func__, &ISystemCtrl::isRs232WakeupEnable); }
    bool setRtcWakeupEnable(bool enable) override { return pass(__func__, &ISystemCtrl::setRtcWakeupEnable, enable); }
    bool isRtcWakeupEnable() override { return pass(__func__, &ISystemCtrl::isRtcWakeupEnable); }
    bool setUsbPowerEnable(bool enable) override { return pass(__func__, &ISystemCtrl::setUsbPowerEnable, enable); }
    bool getUsbPowerEnableSta() override { return pass(__func__, &ISystemCtrl::getUsbPowerEnableSta); }
    bool resetBootAnimation() override { return pass(__func__, &ISystemCtrl::resetBootAnimation); }
    bool setSTRWakeLockState(bool state) override { return pass(__func__, &ISystemCtrl::setSTRWakeLockState, state); }
    bool getSTRWakeLockState() override { return pass(__func__, &ISystemCtrl::getSTRWakeLockState); }
    bool isSignalPluginWakeup() override { return pass(__func__, &ISystemCtrl::isSignalPluginWakeup); }
    bool setSignalPluginWakeup(bool enable) override { return pass(__func__, &ISystemCtrl::setSignalPluginWakeup, enable); }
    bool isCecWakeupEnable() override { return pass(__func__, &ISystemCtrl::isCecWakeupEnable); }
    bool setCecWakeupEnable(bool enable) override { return pass(__func__, &ISystemCtrl::setCecWakeupEnable, enable); }
    bool getWakeDelayLinkToID() override { return pass(__func__, &ISystemCtrl::getWakeDelayLinkToID); }
    bool setWakeDelayLinkToID(bool linkId) override { return pass(__func__, &ISystemCtrl::setWakeDelayLinkToID, linkId); }
    bool setlockkeyIR(bool lock_enable, int lock_device) override { return pass(__func__, &ISystemCtrl::setlockkeyIR, lock_enable, lock_device); }
    void setBootLogoEnable(bool enable) override { return pass(__func__, &ISystemCtrl::setBootLogoEnable, enable); }
    bool getBootLogoEnable() override { return pass(__func__, &ISystemCtrl::getBootLogoEnable); }
    bool resetBootVideo() override { return pass(__func__, &ISystemCtrl::resetBootVideo); }
    void enable_hdmi_switch_tx(bool enable) override { return pass(__func__, &ISystemCtrl::enable_hdmi_switch_tx, enable); }
    int getAenaState(int aenaId) override { return pass(__func__, &ISystemCtrl::getAenaState, aenaId); }
    int doDeviceReset() override { return pass(__func__, &ISystemCtrl::doDeviceReset); }
    String16 getCustomBootMediaPath() override { return pass(__func__, &ISystemCtrl::getCustomBootMediaPath); }
    void setCustomBootMediaType(int type) override { return pass(__func__, &ISystemCtrl::setCustomBootMediaType, type); }
    bool keepCpuInPerformance(int seconds) override { return pass(__func__, &ISystemCtrl::keepCpuInPerformance, seconds); }
    bool cancelCpuInPerformance() override { return pass(__func__, &ISystemCtrl::cancelCpuInPerformance); }
    bool keepGpuInPerformance(int seconds) override { return pass(__func__, &ISystemCtrl::keepGpuInPerformance, seconds); }
    bool cancelGpuInPerformance() override { return pass(__func__, &ISystemCtrl::cancelGpuInPerformance); }
    int getPowerMode() override { return pass(__func__, &ISystemCtrl::getPowerMode); }
    bool setPowerMode(int mode) override { return pass(__func__, &ISystemCtrl::setPowerMode, mode); }
    bool setCecCtlType(int type) override { return pass(__func__, &ISystemCtrl::setCecCtlType, type); }
    bool setSarPowerMode(int mode) override { return pass(__func__, &ISystemCtrl::setSarPowerMode, mode); }
    int getSarPowerMode() override { return pass(__func__, &ISystemCtrl::getSarPowerMode); }
};
struct RecTeaDspCtrl : Pass<ITeaDspCtrl> { using Pass::Pass;
    std::string GetDeviceInfo() override { return pass(__func__, &ITeaDspCtrl::GetDeviceInfo); }
    bool getDeviceMute(int stream_type) override { return pass(__func__, &ITeaDspCtrl::getDeviceMute, stream_type); }
    int SetDevicePoeSinkRouteMode(int mode) override { return pass(__func__, &ITeaDspCtrl::SetDevicePoeSinkRouteMode, mode); }
    int GetDevicePoeSinkRouteMode() override { return pass(__func__, &ITeaDspCtrl::GetDevicePoeSinkRouteMode); }
    void DevicePortAttachStateUpdate(const char* device_id, int port_type, const char* port_name, bool attach, const char* attach_message) override { return pass(__func__, &ITeaDspCtrl::DevicePortAttachStateUpdate, device_id, port_type, port_name, attach, attach_message); }
    std::string GetAllDeviceInformation() override { return pass(__func__, &ITeaDspCtrl::GetAllDeviceInformation); }
    int SetDeviceLineoutSinkRouteMode(int mode) override { return pass(__func__, &ITeaDspCtrl::SetDeviceLineoutSinkRouteMode, mode); }
    int GetDeviceLineoutSinkRouteMode() override { return pass(__func__, &ITeaDspCtrl::GetDeviceLineoutSinkRouteMode); }
    std::string GetDevicePortAttachInformation() override { return pass(__func__, &ITeaDspCtrl::GetDevicePortAttachInformation); }
    int SetDeviceOffHook(int is_offhook) override { return pass(__func__, &ITeaDspCtrl::SetDeviceOffHook, is_offhook); }
    int SetDeviceMicrophoneOverallMute(int mode) override { return pass(__func__, &ITeaDspCtrl::SetDeviceMicrophoneOverallMute, mode); }
    int GetDeviceMicrophoneOverallMute() override { return pass(__func__, &ITeaDspCtrl::GetDeviceMicrophoneOverallMute); }
    int SetDeviceRingCall(int mode) override { return pass(__func__, &ITeaDspCtrl::SetDeviceRingCall, mode); }
};
struct RecTouchCtrl : Pass<ITouchCtrl> { using Pass::Pass;
    int getpennum() override { return pass(__func__, &ITouchCtrl::getpennum); }
    bool setpennum(int value) override { return pass(__func__, &ITouchCtrl::setpennum, value); }
    String16 getParameter(const String16& key) override { return pass(__func__, &ITouchCtrl::getParameter, key); }
    void setParameter(const String16& key, const String16& value) override { return pass(__func__, &ITouchCtrl::setParameter, key, value); }
    void addNoTouchArea(TouchRect rect) override { return pass(__func__, &ITouchCtrl::addNoTouchArea, rect); }
    String16 getHidMode() override { return pass(__func__, &ITouchCtrl::getHidMode); }
    bool setPressureMode(int mode) override { return pass(__func__, &ITouchCtrl::setPressureMode, mode); }
    int getPressureMode() override { return pass(__func__, &ITouchCtrl::getPressureMode); }
    bool setAndroidForbiddenState(int state) override { return pass(__func__, &ITouchCtrl::setAndroidForbiddenState, state); }
    bool getAndroidForbiddenState() override { return pass(__func__, &ITouchCtrl::getAndroidForbiddenState); }
    bool setTouchSmothingFliter(int value) override { return pass(__func__, &ITouchCtrl::setTouchSmothingFliter, value); }
    int getTouchSmothingFliter() override { return pass(__func__, &ITouchCtrl::getTouchSmothingFliter); }
    int getTouchAreaRecognitionMethod() override { return pass(__func__, &ITouchCtrl::getTouchAreaRecognitionMethod); }
};
struct RecTxbCtrl : Pass<ITxbCtrl> { using Pass::Pass;
    int getTxbSensorMuteState() override { return pass(__func__, &ITxbCtrl::getTxbSensorMuteState); }
    bool setTxbSensorMuteState(int num, bool state) override { return pass(__func__, &ITxbCtrl::setTxbSensorMuteState, num, state); }
    int getTxbSensorSelfTestState(int* values) override { return pass(__func__, &ITxbCtrl::getTxbSensorSelfTestState, sim::outArray("values", values, kTxbSelfTestValues)); }
    bool setTxbSensorSelfTestState(const int* values, int len) override { return pass(__func__, &ITxbCtrl::setTxbSensorSelfTestState, sim::inArray(values, kTxbSelfTestValues), len); }
};
struct RecVgaAdjust : Pass<IVgaAdjust> { using Pass::Pass;
    int setvgaAdjustData(int type, int val) override { return pass(__func__, &IVgaAdjust::setvgaAdjustData, type, val); }
    int getvgaAdjustData(int type) override { return pass(__func__, &IVgaAdjust::getvgaAdjustData, type); }
};
struct RecXbugCtrl : Pass<IXbugCtrl> { using Pass::Pass;
    int setBrelServiceLogLevel(int level) override { return pass(__func__, &IXbugCtrl::setBrelServiceLogLevel, level); }
    int getBrelServiceLogLevel(int type) override { return pass(__func__, &IXbugCtrl::getBrelServiceLogLevel, type); }
    int setBrelFuntionChkBaseTime(int time) override { return pass(__func__, &IXbugCtrl::setBrelFuntionChkBaseTime, time); }
    int getBrelFuntionChkBaseTime() override { return pass(__func__, &IXbugCtrl::getBrelFuntionChkBaseTime); }
    int getBrelFuntionTimeOutList() override { return pass(__func__, &IXbugCtrl::getBrelFuntionTimeOutList); }
    std::string getNodeInfo(const std::string& nodeName) override { return pass(__func__, &IXbugCtrl::getNodeInfo, nodeName); }
};

// The accessors of the library's manager, in the order of its table.
#define RECORD_CONTROLS(X) \
    X(SystemCtrl) X(ProjectId) X(SourceCtrl) X(DeviceCtrl) X(DevicePortCtrl) \
    X(NetworkCtrl) X(BluetoothCtrl) X(AtCfgControl) X(KeyboardCtrl) X(AvManagerCtrl) \
    X(FwUpgrade) X(Rs232Ctrl) X(RGBLedCtrl) X(AudioCtrl) X(TouchCtrl) \
    X(TeaDspCtrl) X(AnionCtrl) X(BacklightCtrl) X(VgaAdjust) X(CameraCtrl) \
    X(SensorBoxCtrl) X(IoBoxCtrl) X(TxbCtrl) X(GpioCtrl) X(XbugCtrl) \
    X(RemoteCtrl) X(PmsCtrl) X(ExtendDisplayCtrl) X(PQCtrl) X(PcModuleCtrl) \
    X(SmartPenModeCtrl) X(MicrophoneCtrl) X(BurnKeyCtrl) X(BurnMacCtrl) X(FwTouchCtrl) \
    X(LandscapeCtrl) X(SoundScreenAngleCtrl) X(AiNoiseCtrl) X(SuspendCtrl) X(SerialCtrl) \
    X(DebugCtrl)

// The library's manager: each accessor's control passes through, or null is written absent.
class RecBrelManager : public IBrelManager {
public:
    explicit RecBrelManager(IBrelManager* real) : mReal(real) {}

#define RECORD_ACCESSOR(Name) \
    I##Name* get##Name() override { return control<Rec##Name>("get" #Name, "I" #Name, &IBrelManager::get##Name); }
    RECORD_CONTROLS(RECORD_ACCESSOR)

private:
    sp<IBrelManager> mReal;

    template <typename Rec, typename I>
    I* control(const char* accessor, const char* name, I* (IBrelManager::*get)()) {
        I* real = (mReal.get()->*get)();
        if (real == nullptr) absent(accessor);
        return real == nullptr ? nullptr : new Rec(name, real);
    }
};

}  // namespace

IBrelManager* wrap(IBrelManager* real) {
    return real == nullptr ? nullptr : new RecBrelManager(real);
}

}  // namespace record
