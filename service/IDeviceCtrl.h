#pragma once

#include <utils/RefBase.h>
#include <utils/String16.h>

namespace android {

class IDeviceCtrl : public RefBase {
public:
    virtual int getDeviceList() = 0;
    virtual int getSecondDeviceList() = 0;
    virtual int getThirdDeviceList() = 0;
    virtual String16 getBoardName() = 0;
    // The USB switches, one pair per target; a setter returns a status, a getter the channel.
    virtual int setUsbswSideChannel(int channelID) = 0;
    virtual int getUsbswSideChannel() = 0;
    virtual int setUsbswAllChannel(int channelID) = 0;
    virtual int getUsbswAllChannel() = 0;
    virtual int setUsbswTouchinChannel(int channelID) = 0;
    virtual int getUsbswTouchinChannel() = 0;
    virtual int setUsbswPipChannel(int channelID) = 0;
    virtual int getUsbswPipChannel() = 0;
    virtual void setDevicePower(int powerId, bool powerOn) = 0;
    virtual String16 getNfcTagMsg() = 0;
    virtual bool setNfcTagMsg(String16 tagMsg) = 0;

protected:
    ~IDeviceCtrl() override = default;
};

}  // namespace android
