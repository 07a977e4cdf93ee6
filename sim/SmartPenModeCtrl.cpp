#include "Panel.h"
#include "service/ISmartPenModeCtrl.h"

namespace {

using android::_EnumSmartPenMode;

class SimSmartPenModeCtrl : public sim::Control<android::ISmartPenModeCtrl> {
public:
    SimSmartPenModeCtrl() : Control("ISmartPenModeCtrl", kDefaults) {}

    std::vector<_EnumSmartPenMode> getSupportSmartPenModeList() override {
        return call<std::vector<_EnumSmartPenMode>>(__func__);
    }
    bool setSmartPenMode(int mode) override { return call<bool>(__func__, mode); }
    int getSmartPenMode() override { return call<int>(__func__); }

private:
    static constexpr const char* kDefaults = R"({
        "getSupportSmartPenModeList": [0, 1, 2],
        "setSmartPenMode": true,
        "getSmartPenMode": 1
    })";
};

}  // namespace

template <>
android::ISmartPenModeCtrl* sim::make<android::ISmartPenModeCtrl>() {
    return new SimSmartPenModeCtrl;
}
