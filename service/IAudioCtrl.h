#pragma once

#include <utils/RefBase.h>

namespace android {

class IAudioCtrl : public RefBase {
public:
    virtual int getEQMode() = 0;
    virtual int setEQMode(int mode) = 0;
    virtual int getAudioOutMode() = 0;
    virtual int setAudioOutMode(int mode) = 0;
    virtual bool setAudioLineOutEnabled(int enable) = 0;
    virtual bool setAudioPathInternalEnabled(int enable) = 0;
    virtual bool setSPDIFOutEnabled(int enable) = 0;
    virtual bool isMicrophoneAvaliable() = 0;
    virtual bool getOtgMicState() = 0;
    virtual bool setOtgMicState(bool state) = 0;
    virtual int getSubwooferOutProfile() = 0;
    virtual int setSubwooferOutProfile(int profile) = 0;
    virtual int getAudioGain(int module) = 0;
    virtual int setAudioGain(int module, int value) = 0;
    virtual int getAudioOutEnableStatus(int module) = 0;
    virtual int setAudioOutEnableStatus(int module, bool status) = 0;
    virtual int setTrebleOneChannelMute(int module, int status) = 0;
    virtual int setBassOneChannelMute(int module, int status) = 0;
    virtual int getAudioDelay(int channel) = 0;
    virtual int setAudioDelay(int channel, int value) = 0;
    virtual bool getLineInConnectStatus() = 0;

protected:
    ~IAudioCtrl() override = default;
};

}  // namespace android
