#include "Controls.h"
#include "Panel.h"

namespace {

class SimIoBoxCtrl : public sim::Control<android::IIoBoxCtrl> {
public:
    SimIoBoxCtrl() : Control("IIoBoxCtrl", kDefaults) {}

private:
    static constexpr const char* kDefaults = R"({})";
};

}  // namespace

android::IIoBoxCtrl* sim::newIoBoxCtrl() {
    return new SimIoBoxCtrl;
}
