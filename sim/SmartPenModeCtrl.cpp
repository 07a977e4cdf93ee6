#include "Controls.h"
#include "Panel.h"

namespace {

class SimSmartPenModeCtrl : public sim::Control<android::ISmartPenModeCtrl> {
public:
    SimSmartPenModeCtrl() : Control("ISmartPenModeCtrl", kDefaults) {}

private:
    static constexpr const char* kDefaults = R"({})";
};

}  // namespace

android::ISmartPenModeCtrl* sim::newSmartPenModeCtrl() {
    return new SimSmartPenModeCtrl;
}
