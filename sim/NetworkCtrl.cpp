#include "Panel.h"
#include "service/INetworkCtrl.h"

namespace {

class SimNetworkCtrl : public sim::Control<android::INetworkCtrl> {
public:
    SimNetworkCtrl() : Control("INetworkCtrl", kDefaults) {}

    android::String16 getAntennaRssi(int antenna) override {
        return call<android::String16>(__func__, antenna);
    }
    int setMcuDhcpEnable(bool enable) override { return call<int>(__func__, enable); }
    int setMcuDhcpIp(const android::String16& ip) override { return call<int>(__func__, ip); }
    int setMcuDhcpGw(const android::String16& gateway) override {
        return call<int>(__func__, gateway);
    }
    int setMcuDhcpMsk(const android::String16& mask) override { return call<int>(__func__, mask); }
    bool SetWOLEnable(bool enable) override { return call<bool>(__func__, enable); }
    bool GetWOLEnable() override { return call<bool>(__func__); }
    bool SetWOWEnable(bool enable) override { return call<bool>(__func__, enable); }
    bool GetWOWEnable() override { return call<bool>(__func__); }
    bool getWifiDongleStatus() override { return call<bool>(__func__); }
    bool setMcuToControlMonitorNetwork(bool enable) override {
        return call<bool>(__func__, enable);
    }
    bool disableApUsbDevice(bool disable) override { return call<bool>(__func__, disable); }
    bool setSharingDirection(bool direction) override { return call<bool>(__func__, direction); }
    bool getSharingDirection() override { return call<bool>(__func__); }
    bool setAndroidToPcSharing(bool enable) override { return call<bool>(__func__, enable); }
    bool getAndroidToPcSharing() override { return call<bool>(__func__); }
    bool setHotspotSharing(bool enable) override { return call<bool>(__func__, enable); }
    bool getHotspotSharing() override { return call<bool>(__func__); }

private:
    static constexpr const char* kDefaults = R"({
        "getAntennaRssi": "-52",
        "setMcuDhcpEnable": 0, "setMcuDhcpIp": 0, "setMcuDhcpGw": 0, "setMcuDhcpMsk": 0,
        "SetWOLEnable": true, "GetWOLEnable": true,
        "SetWOWEnable": true, "GetWOWEnable": false,
        "getWifiDongleStatus": true,
        "setMcuToControlMonitorNetwork": true, "disableApUsbDevice": true,
        "setSharingDirection": true, "getSharingDirection": false,
        "setAndroidToPcSharing": true, "getAndroidToPcSharing": true,
        "setHotspotSharing": true, "getHotspotSharing": false
    })";
};

}  // namespace

template <>
android::INetworkCtrl* sim::make<android::INetworkCtrl>() {
    return new SimNetworkCtrl;
}
