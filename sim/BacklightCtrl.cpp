#include "Controls.h"
#include "Panel.h"

namespace {

class SimBacklightCtrl : public sim::Control<android::IBacklightCtrl> {
public:
    SimBacklightCtrl() : Control("IBacklightCtrl", kDefaults) {}

private:
    static constexpr const char* kDefaults = R"({})";
};

}  // namespace

android::IBacklightCtrl* sim::newBacklightCtrl() {
    return new SimBacklightCtrl;
}
