#include "Controls.h"
#include "Panel.h"

namespace {

class SimTouchCtrl : public sim::Control<android::ITouchCtrl> {
public:
    SimTouchCtrl() : Control("ITouchCtrl", kDefaults) {}

private:
    static constexpr const char* kDefaults = R"({})";
};

}  // namespace

android::ITouchCtrl* sim::newTouchCtrl() {
    return new SimTouchCtrl;
}
