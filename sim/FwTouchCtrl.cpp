#include "Panel.h"
#include "Records.h"
#include "service/IFwTouchCtrl.h"

namespace {

using android::EntityFwTouch;
using android::EntityFwTouchDriver;

class SimFwTouchCtrl : public sim::Control<android::IFwTouchCtrl> {
public:
    SimFwTouchCtrl() : Control("IFwTouchCtrl", kDefaults) {}

    void getFwTouchList(std::vector<EntityFwTouch>& list) override {
        call(__func__, sim::out("list", list));
    }
    void getFwTouchDriverInfoList(std::vector<EntityFwTouchDriver>& list) override {
        call(__func__, sim::out("list", list));
    }

private:
    static constexpr const char* kDefaults = R"({
        "getFwTouchList": {"list": [
            {"touchModel": 2, "touchType": 1, "fwTouchType": 1, "touchCurrentVersion": "V3.2.08",
             "isSupportUsbUpgrade": true, "usbUpgradeTouchBinName": "touch_fw.bin",
             "isSupportOtaUpgrade": true, "otaUpgradeTouchBinPath": "/data/ota/touch/touch_fw.bin",
             "otaTouchBasicBinVersion": "V3.2.00", "otaTouchKey": "7f3a9c21",
             "needRebootWhenUpgraded": false},
            {"touchModel": 5, "touchType": 2, "fwTouchType": 3, "touchCurrentVersion": "V1.0.5",
             "isSupportUsbUpgrade": true, "usbUpgradeTouchBinName": "pen_fw.bin",
             "isSupportOtaUpgrade": false, "otaUpgradeTouchBinPath": "",
             "otaTouchBasicBinVersion": "", "otaTouchKey": "",
             "needRebootWhenUpgraded": true}
        ]},
        "getFwTouchDriverInfoList": {"list": [
            {"touchModel": 2, "touchType": 1, "swTouchDriverType": 1,
             "touchDriverCurrentVersion": "D2.1.3", "isSupportUsbUpgrade": true,
             "usbUpgradeTouchDriverBinName": "touch_driver.bin"}
        ]}
    })";
};

}  // namespace

template <>
android::IFwTouchCtrl* sim::make<android::IFwTouchCtrl>() {
    return new SimFwTouchCtrl;
}
