#include "Controls.h"
#include "Panel.h"

namespace {

class SimFwTouchCtrl : public sim::Control<android::IFwTouchCtrl> {
public:
    SimFwTouchCtrl() : Control("IFwTouchCtrl", kDefaults) {}

private:
    static constexpr const char* kDefaults = R"({})";
};

}  // namespace

android::IFwTouchCtrl* sim::newFwTouchCtrl() {
    return new SimFwTouchCtrl;
}
