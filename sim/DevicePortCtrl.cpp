#include "Panel.h"
#include "service/IDevicePortCtrl.h"

namespace {

class SimDevicePortCtrl : public sim::Control<android::IDevicePortCtrl> {
public:
    SimDevicePortCtrl() : Control("IDevicePortCtrl", kDefaults) {}

    int setDevicePortEnabled(const char* port, bool enabled) override {
        return call<int>(__func__, port, enabled);
    }
    int getDevicePortList(std::vector<android::String16>& ports) override {
        return call<int>(__func__, sim::out("ports", ports));
    }

private:
    // Four ports, each switch accepted.
    static constexpr const char* kDefaults = R"({
        "setDevicePortEnabled": 1,
        "getDevicePortList": {"result": 0, "ports": ["usb_front_a", "usb_front_c", "hdmi_out", "lan"]}
    })";
};

}  // namespace

template <>
android::IDevicePortCtrl* sim::make<android::IDevicePortCtrl>() {
    return new SimDevicePortCtrl;
}
