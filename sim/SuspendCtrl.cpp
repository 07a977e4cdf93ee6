#include "Panel.h"
#include "service/ISuspendCtrl.h"

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

template <>
android::ISuspendCtrl* sim::make<android::ISuspendCtrl>() {
    return new SimSuspendCtrl;
}
