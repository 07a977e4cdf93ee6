#include "Controls.h"
#include "Panel.h"

namespace {

class SimTxbCtrl : public sim::Control<android::ITxbCtrl> {
public:
    SimTxbCtrl() : Control("ITxbCtrl", kDefaults) {}

private:
    static constexpr const char* kDefaults = R"({})";
};

}  // namespace

android::ITxbCtrl* sim::newTxbCtrl() {
    return new SimTxbCtrl;
}
