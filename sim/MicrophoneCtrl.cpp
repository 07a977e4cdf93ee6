#include "Panel.h"
#include "service/IMicrophoneCtrl.h"

namespace {

class SimMicrophoneCtrl : public sim::Control<android::IMicrophoneCtrl> {
public:
    SimMicrophoneCtrl() : Control("IMicrophoneCtrl", kDefaults) {}

    bool isBuildInMicEnabled(int mic_type) override { return call<bool>(__func__, mic_type); }
    bool setBuildInMicEnabled(int mic_type, bool state) override {
        return call<bool>(__func__, mic_type, state);
    }

private:
    static constexpr const char* kDefaults =
        R"({"isBuildInMicEnabled": true, "setBuildInMicEnabled": true})";
};

}  // namespace

template <>
android::IMicrophoneCtrl* sim::make<android::IMicrophoneCtrl>() {
    return new SimMicrophoneCtrl;
}
