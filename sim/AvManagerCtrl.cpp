#include "Controls.h"
#include "Panel.h"

namespace {

class SimAvManagerCtrl : public sim::Control<android::IAvManagerCtrl> {
public:
    SimAvManagerCtrl() : Control("IAvManagerCtrl", kDefaults) {}

private:
    static constexpr const char* kDefaults = R"({})";
};

}  // namespace

android::IAvManagerCtrl* sim::newAvManagerCtrl() {
    return new SimAvManagerCtrl;
}
