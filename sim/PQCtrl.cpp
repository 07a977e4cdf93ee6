#include "Controls.h"
#include "Panel.h"

namespace {

class SimPQCtrl : public sim::Control<android::IPQCtrl> {
public:
    SimPQCtrl() : Control("IPQCtrl", kDefaults) {}

private:
    static constexpr const char* kDefaults = R"({})";
};

}  // namespace

android::IPQCtrl* sim::newPQCtrl() {
    return new SimPQCtrl;
}
