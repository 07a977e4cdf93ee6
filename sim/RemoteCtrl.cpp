#include "Controls.h"
#include "Panel.h"

namespace {

class SimRemoteCtrl : public sim::Control<android::IRemoteCtrl> {
public:
    SimRemoteCtrl() : Control("IRemoteCtrl", kDefaults) {}

private:
    static constexpr const char* kDefaults = R"({})";
};

}  // namespace

android::IRemoteCtrl* sim::newRemoteCtrl() {
    return new SimRemoteCtrl;
}
