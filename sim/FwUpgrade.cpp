#include "Panel.h"
#include "Records.h"
#include "service/IFwUpgrade.h"

namespace {

using android::EntityFwInfoMcu;
using android::String16;

class SimFwUpgrade : public sim::Control<android::IFwUpgrade> {
public:
    SimFwUpgrade() : Control("IFwUpgrade", kDefaults) {}

    bool setFirmwareUpgrade(int type, const String16& file) override {
        return call<bool>(__func__, type, file);
    }
    String16 getMcuBinNameToUp(int type) override { return call<String16>(__func__, type); }
    String16 getFwVersion(int type) override { return call<String16>(__func__, type); }
    String16 getFwOtakey(int type) override { return call<String16>(__func__, type); }
    String16 getFwInfoTypecList() override { return call<String16>(__func__); }
    bool getFwMcuList(std::vector<EntityFwInfoMcu>& mcu_list) override {
        return call<bool>(__func__, sim::out("mcu_list", mcu_list));
    }
    String16 getFwTargetVersion(int type) override { return call<String16>(__func__, type); }
    String16 getFwTargetBinPath(int type) override { return call<String16>(__func__, type); }

private:
    static constexpr const char* kDefaults = R"({
        "setFirmwareUpgrade": true,
        "getMcuBinNameToUp": "BRL_MCU_MAIN_V2.3.1.bin",
        "getFwVersion": "V2.3.0",
        "getFwOtakey": "mcu-main-ota-7f3a",
        "getFwInfoTypecList": "typec1:V1.0.4,typec2:V1.0.4",
        "getFwMcuList": {"result": true, "mcu_list": [
            {"mcuType": 1, "fwMcuType": 1, "mcuCurrentVersion": "V2.3.0",
             "isSupportUsbUpgrade": 1, "usbUpgradeMcuBinName": "BRL_MCU_MAIN_V2.3.1.bin",
             "isSupportOtaUpgrade": 1, "otaUpgradeMcuBinPath": "/data/vendor/fw/BRL_MCU_MAIN_V2.3.1.bin",
             "otaMcuBasicBinVersion": "V2.0.0", "otaMcuKey": "mcu-main-ota-7f3a",
             "needRebootWhenUpgraded": 1},
            {"mcuType": 2, "fwMcuType": 3, "mcuCurrentVersion": "V1.0.7",
             "isSupportUsbUpgrade": 1, "usbUpgradeMcuBinName": "BRL_MCU_PD_V1.0.8.bin",
             "isSupportOtaUpgrade": 0, "otaUpgradeMcuBinPath": "",
             "otaMcuBasicBinVersion": "", "otaMcuKey": "",
             "needRebootWhenUpgraded": 0}
        ]},
        "getFwTargetVersion": "V2.3.1",
        "getFwTargetBinPath": "/data/vendor/fw/BRL_MCU_MAIN_V2.3.1.bin"
    })";
};

}  // namespace

template <>
android::IFwUpgrade* sim::make<android::IFwUpgrade>() {
    return new SimFwUpgrade;
}
