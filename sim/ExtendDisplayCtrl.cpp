#include "Controls.h"
#include "Panel.h"

namespace {

class SimExtendDisplayCtrl : public sim::Control<android::IExtendDisplayCtrl> {
public:
    SimExtendDisplayCtrl() : Control("IExtendDisplayCtrl", kDefaults) {}

private:
    static constexpr const char* kDefaults = R"({})";
};

}  // namespace

android::IExtendDisplayCtrl* sim::newExtendDisplayCtrl() {
    return new SimExtendDisplayCtrl;
}
