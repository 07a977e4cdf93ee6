#include "Panel.h"
#include "service/IPcModuleCtrl.h"

namespace {

class SimPcModuleCtrl : public sim::Control<android::IPcModuleCtrl> {
public:
    SimPcModuleCtrl() : Control("IPcModuleCtrl", kDefaults) {}

    int getPcState() override { return call<int>(__func__); }
    int setPcSwitchOn() override { return call<int>(__func__); }
    int setPcSwitchOff() override { return call<int>(__func__); }
    int setPcRecovery() override { return call<int>(__func__); }
    std::vector<android::_EnumPcBootMode> getSupportPcBootModeList() override {
        return call<std::vector<android::_EnumPcBootMode>>(__func__);
    }
    bool setPcBootMode(int mode) override { return call<bool>(__func__, mode); }
    int getPcBootMode() override { return call<int>(__func__); }

private:
    static constexpr const char* kDefaults = R"({
        "getPcState": 1,
        "setPcSwitchOn": 0, "setPcSwitchOff": 0, "setPcRecovery": 0,
        "getSupportPcBootModeList": [0, 1, 2],
        "setPcBootMode": true,
        "getPcBootMode": 0
    })";
};

}  // namespace

template <>
android::IPcModuleCtrl* sim::make<android::IPcModuleCtrl>() {
    return new SimPcModuleCtrl;
}
