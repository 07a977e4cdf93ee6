#include "Controls.h"
#include "Panel.h"

namespace {

class SimAtCfgControl : public sim::Control<android::IAtCfgControl> {
public:
    SimAtCfgControl() : Control("IAtCfgControl", kDefaults) {}

private:
    static constexpr const char* kDefaults = R"({})";
};

}  // namespace

android::IAtCfgControl* sim::newAtCfgControl() {
    return new SimAtCfgControl;
}
