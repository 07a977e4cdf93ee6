#include "Controls.h"
#include "Panel.h"

namespace {

class SimMicrophoneCtrl : public sim::Control<android::IMicrophoneCtrl> {
public:
    SimMicrophoneCtrl() : Control("IMicrophoneCtrl", kDefaults) {}

private:
    static constexpr const char* kDefaults = R"({})";
};

}  // namespace

android::IMicrophoneCtrl* sim::newMicrophoneCtrl() {
    return new SimMicrophoneCtrl;
}
