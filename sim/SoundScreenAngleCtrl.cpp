#include "Panel.h"
#include "Records.h"
#include "service/ISoundScreenAngleCtrl.h"

namespace {

class SimSoundScreenAngleCtrl : public sim::Control<android::ISoundScreenAngleCtrl> {
public:
    SimSoundScreenAngleCtrl() : Control("ISoundScreenAngleCtrl", kDefaults) {}

    bool setSoundScreenAngle(int start_angle, int end_angle) override {
        return call<bool>(__func__, start_angle, end_angle);
    }
    android::SoundScreenAngle getSoundScreenAngle() override {
        return call<android::SoundScreenAngle>(__func__);
    }

private:
    static constexpr const char* kDefaults = R"({
        "setSoundScreenAngle": false,
        "getSoundScreenAngle": {"start_angle": 30, "end_angle": 150}
    })";
};

}  // namespace

template <>
android::ISoundScreenAngleCtrl* sim::make<android::ISoundScreenAngleCtrl>() {
    return new SimSoundScreenAngleCtrl;
}
