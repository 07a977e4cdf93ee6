#include "Controls.h"
#include "Panel.h"

namespace {

class SimDevicePortCtrl : public sim::Control<android::IDevicePortCtrl> {
public:
    SimDevicePortCtrl() : Control("IDevicePortCtrl", kDefaults) {}

private:
    static constexpr const char* kDefaults = R"({})";
};

}  // namespace

android::IDevicePortCtrl* sim::newDevicePortCtrl() {
    return new SimDevicePortCtrl;
}
