#include "Controls.h"
#include "Panel.h"

namespace {

class SimCameraCtrl : public sim::Control<android::ICameraCtrl> {
public:
    SimCameraCtrl() : Control("ICameraCtrl", kDefaults) {}

private:
    static constexpr const char* kDefaults = R"({})";
};

}  // namespace

android::ICameraCtrl* sim::newCameraCtrl() {
    return new SimCameraCtrl;
}
