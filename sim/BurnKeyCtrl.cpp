#include "Controls.h"
#include "Panel.h"

namespace {

class SimBurnKeyCtrl : public sim::Control<android::IBurnKeyCtrl> {
public:
    SimBurnKeyCtrl() : Control("IBurnKeyCtrl", kDefaults) {}

private:
    static constexpr const char* kDefaults = R"({})";
};

}  // namespace

android::IBurnKeyCtrl* sim::newBurnKeyCtrl() {
    return new SimBurnKeyCtrl;
}
