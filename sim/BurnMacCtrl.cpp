#include "Panel.h"
#include "Records.h"
#include "service/IBurnMacCtrl.h"

namespace {

using android::EntitySwMac;
using android::String16;

class SimBurnMacCtrl : public sim::Control<android::IBurnMacCtrl> {
public:
    SimBurnMacCtrl() : Control("IBurnMacCtrl", kDefaults) {}

    bool getSupportBurnMacList(std::vector<EntitySwMac>& macList) override {
        return call<bool>(__func__, sim::out("macList", macList));
    }
    bool setBurnMac(int macType, const String16& macValue) override {
        return call<bool>(__func__, macType, macValue);
    }
    bool setBurnMac2(int macType, const char* macValue, int macExtra) override {
        return call<bool>(__func__, macType, macValue, macExtra);
    }
    String16 getBurnMac(int macType) override { return call<String16>(__func__, macType); }

private:
    static constexpr const char* kDefaults = R"({
        "getSupportBurnMacList": {"result": true, "macList": [
            {"KeyType": 0, "CurrentVersion": "1", "IsSupportUsbBurn": true,
             "UsbBurnKeyBinName": "eth_mac.bin", "NeedRebootWhenBurned": true},
            {"KeyType": 1, "CurrentVersion": "1", "IsSupportUsbBurn": false,
             "UsbBurnKeyBinName": "", "NeedRebootWhenBurned": false}
        ]},
        "setBurnMac": true,
        "setBurnMac2": true,
        "getBurnMac": "02:1A:2B:3C:4D:5E"
    })";
};

}  // namespace

template <>
android::IBurnMacCtrl* sim::make<android::IBurnMacCtrl>() {
    return new SimBurnMacCtrl;
}
