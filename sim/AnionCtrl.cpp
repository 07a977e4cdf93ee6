#include "Panel.h"
#include "service/IAnionCtrl.h"

namespace {

class SimAnionCtrl : public sim::Control<android::IAnionCtrl> {
public:
    SimAnionCtrl() : Control("IAnionCtrl", kDefaults) {}

    int setAnionStatus(int status) override { return call<int>(__func__, status); }

private:
    static constexpr const char* kDefaults = R"({"setAnionStatus": 0})";
};

}  // namespace

template <>
android::IAnionCtrl* sim::make<android::IAnionCtrl>() {
    return new SimAnionCtrl;
}
