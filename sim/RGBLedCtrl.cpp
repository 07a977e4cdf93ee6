#include "Panel.h"
#include "service/IRGBLedCtrl.h"

namespace {

class SimRGBLedCtrl : public sim::Control<android::IRGBLedCtrl> {
public:
    SimRGBLedCtrl() : Control("IRGBLedCtrl", kDefaults) {}

    void setIRInputState() override { call(__func__); }
    void setPowerLedEnableState(int state) override { call(__func__, state); }
    void setLedOtaState(int state) override { call(__func__, state); }
    void setDiagnosisState(int state) override { call(__func__, state); }
    void setPowerStandbyState(int state) override { call(__func__, state); }
    void setLedOn(int led) override { call(__func__, led); }
    void setLedOff(int led) override { call(__func__, led); }
    bool setVaLedState(int state) override { return call<bool>(__func__, state); }
    int getVaLedState() override { return call<int>(__func__); }

private:
    static constexpr const char* kDefaults = R"({"setVaLedState": true, "getVaLedState": 1})";
};

}  // namespace

template <>
android::IRGBLedCtrl* sim::make<android::IRGBLedCtrl>() {
    return new SimRGBLedCtrl;
}
