#include "Controls.h"
#include "Panel.h"

namespace {

class SimNetworkCtrl : public sim::Control<android::INetworkCtrl> {
public:
    SimNetworkCtrl() : Control("INetworkCtrl", kDefaults) {}

private:
    static constexpr const char* kDefaults = R"({})";
};

}  // namespace

android::INetworkCtrl* sim::newNetworkCtrl() {
    return new SimNetworkCtrl;
}
