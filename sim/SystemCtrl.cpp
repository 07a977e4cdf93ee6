#include "Controls.h"
#include "Panel.h"

namespace {

class SimSystemCtrl : public sim::Control<android::ISystemCtrl> {
public:
    SimSystemCtrl() : Control("ISystemCtrl", kDefaults) {}

private:
    static constexpr const char* kDefaults = R"({})";
};

}  // namespace

android::ISystemCtrl* sim::newSystemCtrl() {
    return new SimSystemCtrl;
}
