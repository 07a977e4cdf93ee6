#include "Panel.h"
#include "service/IDeviceCtrl.h"

namespace {

class SimDeviceCtrl : public sim::Control<android::IDeviceCtrl> {
public:
    SimDeviceCtrl() : Control("IDeviceCtrl", kDefaults) {}

    int getDeviceList() override { return call<int>(__func__); }
    int getSecondDeviceList() override { return call<int>(__func__); }
    int getThirdDeviceList() override { return call<int>(__func__); }
    android::String16 getBoardName() override { return call<android::String16>(__func__); }
    int setUsbswSideChannel(int channelID) override { return call<int>(__func__, channelID); }
    int getUsbswSideChannel() override { return call<int>(__func__); }
    int setUsbswAllChannel(int channelID) override { return call<int>(__func__, channelID); }
    int getUsbswAllChannel() override { return call<int>(__func__); }
    int setUsbswTouchinChannel(int channelID) override { return call<int>(__func__, channelID); }
    int getUsbswTouchinChannel() override { return call<int>(__func__); }
    int setUsbswPipChannel(int channelID) override { return call<int>(__func__, channelID); }
    int getUsbswPipChannel() override { return call<int>(__func__); }
    void setDevicePower(int powerId, bool powerOn) override { call(__func__, powerId, powerOn); }
    android::String16 getNfcTagMsg() override { return call<android::String16>(__func__); }
    bool setNfcTagMsg(android::String16 tagMsg) override { return call<bool>(__func__, tagMsg); }

private:
    // The side USB switch on the PC module, the others on the SoC; every switch accepted.
    static constexpr const char* kDefaults = R"({
        "getDeviceList": 31,
        "getSecondDeviceList": 6,
        "getThirdDeviceList": 2,
        "getBoardName": "BRL-PANEL-V2",
        "setUsbswSideChannel": 0,
        "getUsbswSideChannel": 8,
        "setUsbswAllChannel": 0,
        "getUsbswAllChannel": 24,
        "setUsbswTouchinChannel": 0,
        "getUsbswTouchinChannel": 24,
        "setUsbswPipChannel": 0,
        "getUsbswPipChannel": 5,
        "getNfcTagMsg": "BRL-NFC-0001",
        "setNfcTagMsg": true
    })";
};

}  // namespace

template <>
android::IDeviceCtrl* sim::make<android::IDeviceCtrl>() {
    return new SimDeviceCtrl;
}
