#include "Panel.h"
#include "Records.h"
#include "service/IBurnKeyCtrl.h"

namespace {

using android::EntitySwKey;
using android::String16;

class SimBurnKeyCtrl : public sim::Control<android::IBurnKeyCtrl> {
public:
    SimBurnKeyCtrl() : Control("IBurnKeyCtrl", kDefaults) {}

    bool getSupportBurnKeyList(std::vector<EntitySwKey>& keyList) override {
        return call<bool>(__func__, sim::out("keyList", keyList));
    }
    bool setBurnKey(int mode, const String16& keypath) override {
        return call<bool>(__func__, mode, keypath);
    }
    bool setCleanBurnKey(int mode) override { return call<bool>(__func__, mode); }
    String16 getBurnKey(int mode) override { return call<String16>(__func__, mode); }
    String16 getBurnKeyVersion(int mode) override { return call<String16>(__func__, mode); }

private:
    static constexpr const char* kDefaults = R"({
        "getSupportBurnKeyList": {"result": true, "keyList": [
            {"KeyType": 1, "CurrentValue": "HDCP14-3F2A9C", "CurrentVersion": "1.4",
             "IsSupportUsbBurn": true, "UsbBurnKeyBinName": "hdcp14_key.bin",
             "NeedRebootWhenBurned": false},
            {"KeyType": 2, "CurrentValue": "HDCP22-81D07E", "CurrentVersion": "2.2",
             "IsSupportUsbBurn": true, "UsbBurnKeyBinName": "hdcp22_key.bin",
             "NeedRebootWhenBurned": true}
        ]},
        "setBurnKey": true,
        "setCleanBurnKey": true,
        "getBurnKey": "HDCP14-3F2A9C",
        "getBurnKeyVersion": "1.4"
    })";
};

}  // namespace

template <>
android::IBurnKeyCtrl* sim::make<android::IBurnKeyCtrl>() {
    return new SimBurnKeyCtrl;
}
