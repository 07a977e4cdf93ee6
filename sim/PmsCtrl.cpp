#include "Controls.h"
#include "Panel.h"

namespace {

class SimPmsCtrl : public sim::Control<android::IPmsCtrl> {
public:
    SimPmsCtrl() : Control("IPmsCtrl", kDefaults) {}

private:
    static constexpr const char* kDefaults = R"({})";
};

}  // namespace

android::IPmsCtrl* sim::newPmsCtrl() {
    return new SimPmsCtrl;
}
