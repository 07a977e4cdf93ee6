#include "Controls.h"
#include "Panel.h"

namespace {

class SimBluetoothCtrl : public sim::Control<android::IBluetoothCtrl> {
public:
    SimBluetoothCtrl() : Control("IBluetoothCtrl", kDefaults) {}

private:
    static constexpr const char* kDefaults = R"({})";
};

}  // namespace

android::IBluetoothCtrl* sim::newBluetoothCtrl() {
    return new SimBluetoothCtrl;
}
