#include "Controls.h"
#include "Panel.h"

namespace {

class SimDeviceCtrl : public sim::Control<android::IDeviceCtrl> {
public:
    SimDeviceCtrl() : Control("IDeviceCtrl", kDefaults) {}

private:
    static constexpr const char* kDefaults = R"({})";
};

}  // namespace

android::IDeviceCtrl* sim::newDeviceCtrl() {
    return new SimDeviceCtrl;
}
