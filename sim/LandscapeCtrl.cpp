#include "Controls.h"
#include "Panel.h"

namespace {

class SimLandscapeCtrl : public sim::Control<android::ILandscapeCtrl> {
public:
    SimLandscapeCtrl() : Control("ILandscapeCtrl", kDefaults) {}

private:
    static constexpr const char* kDefaults = R"({})";
};

}  // namespace

android::ILandscapeCtrl* sim::newLandscapeCtrl() {
    return new SimLandscapeCtrl;
}
