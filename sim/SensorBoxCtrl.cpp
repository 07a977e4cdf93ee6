#include "Controls.h"
#include "Panel.h"

namespace {

class SimSensorBoxCtrl : public sim::Control<android::ISensorBoxCtrl> {
public:
    SimSensorBoxCtrl() : Control("ISensorBoxCtrl", kDefaults) {}

private:
    static constexpr const char* kDefaults = R"({})";
};

}  // namespace

android::ISensorBoxCtrl* sim::newSensorBoxCtrl() {
    return new SimSensorBoxCtrl;
}
