#include "Panel.h"
#include "service/IAtCfgControl.h"

namespace {

using android::String16;

class SimAtCfgControl : public sim::Control<android::IAtCfgControl> {
public:
    SimAtCfgControl() : Control("IAtCfgControl", kDefaults) {}

    String16 readWidevinevKey() override { return call<String16>(__func__); }
    bool installWidevineKey(const String16& keyText) override {
        return call<bool>(__func__, keyText);
    }
    bool deleteWidevineKey() override { return call<bool>(__func__); }
    String16 readAttestationKey() override { return call<String16>(__func__); }
    bool installAttestationKey(const String16& keyText) override {
        return call<bool>(__func__, keyText);
    }
    bool deleteAttestationKey() override { return call<bool>(__func__); }

private:
    static constexpr const char* kDefaults = R"({
        "readWidevinevKey": "WV-L1-5E0C2B7A9D41",
        "installWidevineKey": true,
        "deleteWidevineKey": true,
        "readAttestationKey": "ATTEST-RSA-EC-3C8F61",
        "installAttestationKey": true,
        "deleteAttestationKey": true
    })";
};

}  // namespace

template <>
android::IAtCfgControl* sim::make<android::IAtCfgControl>() {
    return new SimAtCfgControl;
}
