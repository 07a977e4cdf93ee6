#include "Controls.h"
#include "Panel.h"

namespace {

class SimSoundScreenAngleCtrl : public sim::Control<android::ISoundScreenAngleCtrl> {
public:
    SimSoundScreenAngleCtrl() : Control("ISoundScreenAngleCtrl", kDefaults) {}

private:
    static constexpr const char* kDefaults = R"({})";
};

}  // namespace

android::ISoundScreenAngleCtrl* sim::newSoundScreenAngleCtrl() {
    return new SimSoundScreenAngleCtrl;
}
