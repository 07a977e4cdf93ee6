#include "Panel.h"
#include "service/IDebugCtrl.h"

namespace {

class SimDebugCtrl : public sim::Control<android::IDebugCtrl> {
public:
    SimDebugCtrl() : Control("IDebugCtrl", kDefaults) {}

    bool getSuperRootState() override { return call<bool>(__func__); }
    bool setSuperRootState(const char* state) override { return call<bool>(__func__, state); }

private:
    // Super-root off; a change is accepted.
    static constexpr const char* kDefaults = R"({
        "getSuperRootState": false,
        "setSuperRootState": true
    })";
};

}  // namespace

template <>
android::IDebugCtrl* sim::make<android::IDebugCtrl>() {
    return new SimDebugCtrl;
}
