#include "Controls.h"
#include "Panel.h"

namespace {

class SimAiNoiseCtrl : public sim::Control<android::IAiNoiseCtrl> {
public:
    SimAiNoiseCtrl() : Control("IAiNoiseCtrl", kDefaults) {}

private:
    static constexpr const char* kDefaults = R"({})";
};

}  // namespace

android::IAiNoiseCtrl* sim::newAiNoiseCtrl() {
    return new SimAiNoiseCtrl;
}
