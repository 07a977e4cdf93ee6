#include "Panel.h"
#include "service/IBluetoothCtrl.h"

namespace {

class SimBluetoothCtrl : public sim::Control<android::IBluetoothCtrl> {
public:
    SimBluetoothCtrl() : Control("IBluetoothCtrl", kDefaults) {}

    bool isBleWakeup() override { return call<bool>(__func__); }
    void setBleWakeup(bool enable) override { call(__func__, enable); }

private:
    static constexpr const char* kDefaults = R"({"isBleWakeup": true})";
};

}  // namespace

template <>
android::IBluetoothCtrl* sim::make<android::IBluetoothCtrl>() {
    return new SimBluetoothCtrl;
}
