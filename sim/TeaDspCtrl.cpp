#include "Panel.h"
#include "service/ITeaDspCtrl.h"

namespace {

class SimTeaDspCtrl : public sim::Control<android::ITeaDspCtrl> {
public:
    SimTeaDspCtrl() : Control("ITeaDspCtrl", kDefaults) {}

    std::string GetDeviceInfo() override { return call<std::string>(__func__); }
    bool getDeviceMute(int stream_type) override { return call<bool>(__func__, stream_type); }
    int SetDevicePoeSinkRouteMode(int mode) override { return call<int>(__func__, mode); }
    int GetDevicePoeSinkRouteMode() override { return call<int>(__func__); }
    void DevicePortAttachStateUpdate(const char* device_id, int port_type, const char* port_name,
                                     bool attach, const char* attach_message) override {
        call(__func__, device_id, port_type, port_name, attach, attach_message);
    }
    std::string GetAllDeviceInformation() override { return call<std::string>(__func__); }
    int SetDeviceLineoutSinkRouteMode(int mode) override { return call<int>(__func__, mode); }
    int GetDeviceLineoutSinkRouteMode() override { return call<int>(__func__); }
    std::string GetDevicePortAttachInformation() override { return call<std::string>(__func__); }
    int SetDeviceOffHook(int is_offhook) override { return call<int>(__func__, is_offhook); }
    int SetDeviceMicrophoneOverallMute(int mode) override { return call<int>(__func__, mode); }
    int GetDeviceMicrophoneOverallMute() override { return call<int>(__func__); }
    int SetDeviceRingCall(int mode) override { return call<int>(__func__, mode); }

private:
    static constexpr const char* kDefaults = R"({
        "GetDeviceInfo": "DSP v2.1.0",
        "getDeviceMute": false,
        "SetDevicePoeSinkRouteMode": 0,
        "GetDevicePoeSinkRouteMode": 3,
        "GetAllDeviceInformation": "main: DSP v2.1.0; mic-pod 1: v1.4.2; mic-pod 2: v1.4.2",
        "SetDeviceLineoutSinkRouteMode": 0,
        "GetDeviceLineoutSinkRouteMode": 2,
        "GetDevicePortAttachInformation": "poe1: mic-pod attached; lineout: detached",
        "SetDeviceOffHook": 0,
        "SetDeviceMicrophoneOverallMute": 0,
        "GetDeviceMicrophoneOverallMute": 0,
        "SetDeviceRingCall": 0
    })";
};

}  // namespace

template <>
android::ITeaDspCtrl* sim::make<android::ITeaDspCtrl>() {
    return new SimTeaDspCtrl;
}
