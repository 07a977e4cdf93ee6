#include "Controls.h"
#include "Panel.h"

namespace {

class SimGpioCtrl : public sim::Control<android::IGpioCtrl> {
public:
    SimGpioCtrl() : Control("IGpioCtrl", kDefaults) {}

private:
    static constexpr const char* kDefaults = R"({})";
};

}  // namespace

android::IGpioCtrl* sim::newGpioCtrl() {
    return new SimGpioCtrl;
}
