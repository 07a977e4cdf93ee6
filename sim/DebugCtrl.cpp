#include "Controls.h"
#include "Panel.h"

namespace {

class SimDebugCtrl : public sim::Control<android::IDebugCtrl> {
public:
    SimDebugCtrl() : Control("IDebugCtrl", kDefaults) {}

private:
    static constexpr const char* kDefaults = R"({})";
};

}  // namespace

android::IDebugCtrl* sim::newDebugCtrl() {
    return new SimDebugCtrl;
}
