#include "Panel.h"
#include "service/IRemoteCtrl.h"

namespace {

using android::String16;

class SimRemoteCtrl : public sim::Control<android::IRemoteCtrl> {
public:
    SimRemoteCtrl() : Control("IRemoteCtrl", kDefaults) {}

    bool disableRemoteCtrl() override { return call<bool>(__func__); }
    bool enableRemoteCtrl() override { return call<bool>(__func__); }
    String16 getParameter(const String16& key) override { return call<String16>(__func__, key); }
    bool setParameter(const String16& key, const String16& value) override {
        return call<bool>(__func__, key, value);
    }

private:
    static constexpr const char* kDefaults = R"({
        "disableRemoteCtrl": true,
        "enableRemoteCtrl": true,
        "getParameter": "on",
        "setParameter": true
    })";
};

}  // namespace

template <>
android::IRemoteCtrl* sim::make<android::IRemoteCtrl>() {
    return new SimRemoteCtrl;
}
