#pragma once

#include <string>

#include <utils/RefBase.h>

namespace android {

class ITeaDspCtrl : public RefBase {
public:
    virtual std::string GetDeviceInfo() = 0;
    // false: the stream is reported as got; true: as failed.
    virtual bool getDeviceMute(int stream_type) = 0;
    virtual int SetDevicePoeSinkRouteMode(int mode) = 0;
    virtual int GetDevicePoeSinkRouteMode() = 0;
    virtual void DevicePortAttachStateUpdate(const char* device_id, int port_type,
                                             const char* port_name, bool attach,
                                             const char* attach_message) = 0;
    virtual std::string GetAllDeviceInformation() = 0;
    virtual int SetDeviceLineoutSinkRouteMode(int mode) = 0;
    virtual int GetDeviceLineoutSinkRouteMode() = 0;
    virtual std::string GetDevicePortAttachInformation() = 0;
    virtual int SetDeviceOffHook(int is_offhook) = 0;
    virtual int SetDeviceMicrophoneOverallMute(int mode) = 0;
    virtual int GetDeviceMicrophoneOverallMute() = 0;
    virtual int SetDeviceRingCall(int mode) = 0;

protected:
    ~ITeaDspCtrl() override = default;
};

}  // namespace android
