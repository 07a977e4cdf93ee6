#include "Controls.h"
#include "Panel.h"

namespace {

class SimXbugCtrl : public sim::Control<android::IXbugCtrl> {
public:
    SimXbugCtrl() : Control("IXbugCtrl", kDefaults) {}

private:
    static constexpr const char* kDefaults = R"({})";
};

}  // namespace

android::IXbugCtrl* sim::newXbugCtrl() {
    return new SimXbugCtrl;
}
