#include "Controls.h"
#include "Panel.h"

namespace {

class SimRGBLedCtrl : public sim::Control<android::IRGBLedCtrl> {
public:
    SimRGBLedCtrl() : Control("IRGBLedCtrl", kDefaults) {}

private:
    static constexpr const char* kDefaults = R"({})";
};

}  // namespace

android::IRGBLedCtrl* sim::newRGBLedCtrl() {
    return new SimRGBLedCtrl;
}
