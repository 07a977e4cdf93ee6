#include "Controls.h"
#include "Panel.h"

namespace {

class SimSuspendCtrl : public sim::Control<android::ISuspendCtrl> {
public:
    SimSuspendCtrl() : Control("ISuspendCtrl", kDefaults) {}

private:
    static constexpr const char* kDefaults = R"({})";
};

}  // namespace

android::ISuspendCtrl* sim::newSuspendCtrl() {
    return new SimSuspendCtrl;
}
