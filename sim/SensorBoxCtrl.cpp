#include "Panel.h"
#include "service/ISensorBoxCtrl.h"

namespace {

class SimSensorBoxCtrl : public sim::Control<android::ISensorBoxCtrl> {
public:
    SimSensorBoxCtrl() : Control("ISensorBoxCtrl", kDefaults) {}

private:
    static constexpr const char* kDefaults = R"({})";
};

}  // namespace

template <>
android::ISensorBoxCtrl* sim::make<android::ISensorBoxCtrl>() {
    return new SimSensorBoxCtrl;
}
