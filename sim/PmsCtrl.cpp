#include "Panel.h"
#include "service/IPmsCtrl.h"

namespace {

class SimPmsCtrl : public sim::Control<android::IPmsCtrl> {
public:
    SimPmsCtrl() : Control("IPmsCtrl", kDefaults) {}

    int getWakeupSrc() override { return call<int>(__func__); }
    int getWakeupSrcFromUboot() override { return call<int>(__func__); }
    android::String16 readAssetData(int first, int second) override {
        return call<android::String16>(__func__, first, second);
    }
    bool setPmsWakeupSources(const std::vector<android::_BrelEnumInputSourceId_>& sources) override {
        return call<bool>(__func__, sources);
    }

private:
    // Woken by the power key, as the boot loader saw it too.
    static constexpr const char* kDefaults = R"({
        "getWakeupSrc": 1,
        "getWakeupSrcFromUboot": 1,
        "readAssetData": "BRL-ASSET-0001",
        "setPmsWakeupSources": true
    })";
};

}  // namespace

template <>
android::IPmsCtrl* sim::make<android::IPmsCtrl>() {
    return new SimPmsCtrl;
}
