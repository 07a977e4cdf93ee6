#include "Panel.h"
#include "service/IIoBoxCtrl.h"

namespace {

class SimIoBoxCtrl : public sim::Control<android::IIoBoxCtrl> {
public:
    SimIoBoxCtrl() : Control("IIoBoxCtrl", kDefaults) {}

private:
    static constexpr const char* kDefaults = R"({})";
};

}  // namespace

template <>
android::IIoBoxCtrl* sim::make<android::IIoBoxCtrl>() {
    return new SimIoBoxCtrl;
}
