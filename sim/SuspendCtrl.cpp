#include "Controls.h"
#include "Panel.h"

namespace {

class SimSuspendCtrl : public sim::Control<android::ISuspendCtrl> {
public:
    SimSuspendCtrl() : Control("ISuspendCtrl", kDefaults) {}

    bool getSuspendStatus() override { return call<bool>(__func__); }
    int setSuspendStatus(bool suspend) override { return call<int>(__func__, suspend); }

private:
    // A panel that is awake.
    static constexpr const char* kDefaults = R"({
        "getSuspendStatus": false,
        "setSuspendStatus": 0
    })";
};

}  // namespace

android::ISuspendCtrl* sim::newSuspendCtrl() {
    return new SimSuspendCtrl;
}
