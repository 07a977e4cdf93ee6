#include "Panel.h"
#include "service/IAudioCtrl.h"

namespace {

class SimAudioCtrl : public sim::Control<android::IAudioCtrl> {
public:
    SimAudioCtrl() : Control("IAudioCtrl", kDefaults) {}

    int getEQMode() override { return call<int>(__func__); }
    int setEQMode(int mode) override { return call<int>(__func__, mode); }
    int getAudioOutMode() override { return call<int>(__func__); }
    int setAudioOutMode(int mode) override { return call<int>(__func__, mode); }
    bool setAudioLineOutEnabled(int enable) override { return call<bool>(__func__, enable); }
    bool setAudioPathInternalEnabled(int enable) override { return call<bool>(__func__, enable); }
    bool setSPDIFOutEnabled(int enable) override { return call<bool>(__func__, enable); }
    bool isMicrophoneAvaliable() override { return call<bool>(__func__); }
    bool getOtgMicState() override { return call<bool>(__func__); }
    bool setOtgMicState(bool state) override { return call<bool>(__func__, state); }
    int getSubwooferOutProfile() override { return call<int>(__func__); }
    int setSubwooferOutProfile(int profile) override { return call<int>(__func__, profile); }
    int getAudioGain(int module) override { return call<int>(__func__, module); }
    int setAudioGain(int module, int value) override { return call<int>(__func__, module, value); }
    int getAudioOutEnableStatus(int module) override { return call<int>(__func__, module); }
    int setAudioOutEnableStatus(int module, bool status) override {
        return call<int>(__func__, module, status);
    }
    int setTrebleOneChannelMute(int module, int status) override {
        return call<int>(__func__, module, status);
    }
    int setBassOneChannelMute(int module, int status) override {
        return call<int>(__func__, module, status);
    }
    int getAudioDelay(int channel) override { return call<int>(__func__, channel); }
    int setAudioDelay(int channel, int value) override {
        return call<int>(__func__, channel, value);
    }
    bool getLineInConnectStatus() override { return call<bool>(__func__); }

private:
    static constexpr const char* kDefaults = R"({
        "getEQMode": 1, "setEQMode": 0,
        "getAudioOutMode": 0, "setAudioOutMode": 0,
        "setAudioLineOutEnabled": true, "setAudioPathInternalEnabled": true,
        "setSPDIFOutEnabled": true,
        "isMicrophoneAvaliable": true,
        "getOtgMicState": false, "setOtgMicState": true,
        "getSubwooferOutProfile": 2, "setSubwooferOutProfile": 0,
        "getAudioGain": 20, "setAudioGain": 0,
        "getAudioOutEnableStatus": 1, "setAudioOutEnableStatus": 0,
        "setTrebleOneChannelMute": 0, "setBassOneChannelMute": 0,
        "getAudioDelay": 40, "setAudioDelay": 0,
        "getLineInConnectStatus": false
    })";
};

}  // namespace

template <>
android::IAudioCtrl* sim::make<android::IAudioCtrl>() {
    return new SimAudioCtrl;
}
