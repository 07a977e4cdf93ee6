#include "Controls.h"
#include "Panel.h"

namespace {

class SimBurnMacCtrl : public sim::Control<android::IBurnMacCtrl> {
public:
    SimBurnMacCtrl() : Control("IBurnMacCtrl", kDefaults) {}

private:
    static constexpr const char* kDefaults = R"({})";
};

}  // namespace

android::IBurnMacCtrl* sim::newBurnMacCtrl() {
    return new SimBurnMacCtrl;
}
