#include "Controls.h"
#include "Panel.h"

namespace {

class SimPcModuleCtrl : public sim::Control<android::IPcModuleCtrl> {
public:
    SimPcModuleCtrl() : Control("IPcModuleCtrl", kDefaults) {}

private:
    static constexpr const char* kDefaults = R"({})";
};

}  // namespace

android::IPcModuleCtrl* sim::newPcModuleCtrl() {
    return new SimPcModuleCtrl;
}
