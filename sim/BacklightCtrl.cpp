#include "Panel.h"
#include "service/IBacklightCtrl.h"

namespace {

class SimBacklightCtrl : public sim::Control<android::IBacklightCtrl> {
public:
    SimBacklightCtrl() : Control("IBacklightCtrl", kDefaults) {}

    int getScreenBrightness() override { return call<int>(__func__); }
    int setScreenBrightness(int value) override { return call<int>(__func__, value); }
    int getScreenMaxBrightness() override { return call<int>(__func__); }
    int setScreenMaxBrightness(int value) override { return call<int>(__func__, value); }

private:
    static constexpr const char* kDefaults = R"({
        "getScreenBrightness": 50,
        "setScreenBrightness": 0,
        "getScreenMaxBrightness": 100,
        "setScreenMaxBrightness": 0
    })";
};

}  // namespace

template <>
android::IBacklightCtrl* sim::make<android::IBacklightCtrl>() {
    return new SimBacklightCtrl;
}
