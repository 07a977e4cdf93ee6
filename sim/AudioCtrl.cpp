#include "Controls.h"
#include "Panel.h"

namespace {

class SimAudioCtrl : public sim::Control<android::IAudioCtrl> {
public:
    SimAudioCtrl() : Control("IAudioCtrl", kDefaults) {}

private:
    static constexpr const char* kDefaults = R"({})";
};

}  // namespace

android::IAudioCtrl* sim::newAudioCtrl() {
    return new SimAudioCtrl;
}
