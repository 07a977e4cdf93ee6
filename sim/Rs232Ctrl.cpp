#include "Panel.h"
#include "service/IRs232Ctrl.h"

namespace {

class SimRs232Ctrl : public sim::Control<android::IRs232Ctrl> {
public:
    SimRs232Ctrl() : Control("IRs232Ctrl", kDefaults) {}

    android::String16 getSmartRs232FrontUsb(int selector) override {
        return call<android::String16>(__func__, selector);
    }
    android::String16 getSmartRs232SideUsb(int selector) override {
        return call<android::String16>(__func__, selector);
    }
    android::String16 getSmartRs232EthMac(int selector) override {
        return call<android::String16>(__func__, selector);
    }
    bool getATRs232TestResult() override { return call<bool>(__func__); }
    android::String16 getEmmcSize() override { return call<android::String16>(__func__); }
    android::String16 getRamSize() override { return call<android::String16>(__func__); }

private:
    static constexpr const char* kDefaults = R"({
        "getSmartRs232FrontUsb": "connected",
        "getSmartRs232SideUsb": "disconnected",
        "getSmartRs232EthMac": "02:1A:2B:3C:4D:60",
        "getATRs232TestResult": true,
        "getEmmcSize": "64GB",
        "getRamSize": "4GB"
    })";
};

}  // namespace

template <>
android::IRs232Ctrl* sim::make<android::IRs232Ctrl>() {
    return new SimRs232Ctrl;
}
