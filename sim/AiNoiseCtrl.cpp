#include "Panel.h"
#include "service/IAiNoiseCtrl.h"

namespace {

class SimAiNoiseCtrl : public sim::Control<android::IAiNoiseCtrl> {
public:
    SimAiNoiseCtrl() : Control("IAiNoiseCtrl", kDefaults) {}

    bool setAiNoise(float value) override { return call<bool>(__func__, value); }
    float getAiNoise() override { return call<float>(__func__); }

private:
    static constexpr const char* kDefaults = R"({"setAiNoise": false, "getAiNoise": 0.35})";
};

}  // namespace

template <>
android::IAiNoiseCtrl* sim::make<android::IAiNoiseCtrl>() {
    return new SimAiNoiseCtrl;
}
