#include "Panel.h"
#include "Records.h"
#include "service/IPQCtrl.h"

namespace {

using android::PresetColorTempRgb;

class SimPQCtrl : public sim::Control<android::IPQCtrl> {
public:
    SimPQCtrl() : Control("IPQCtrl", kDefaults) {}

    bool getDCREnable() override { return call<bool>(__func__); }
    int setDCREnable(bool enable) override { return call<int>(__func__, enable); }
    bool getDBCEnable() override { return call<bool>(__func__); }
    int setDBCEnable(bool enable) override { return call<int>(__func__, enable); }
    int getPQRGain() override { return call<int>(__func__); }
    int setPQRGain(int value) override { return call<int>(__func__, value); }
    int getPQGGain() override { return call<int>(__func__); }
    int setPQGGain(int value) override { return call<int>(__func__, value); }
    int getPQBGain() override { return call<int>(__func__); }
    int setPQBGain(int value) override { return call<int>(__func__, value); }
    int getColorTemp() override { return call<int>(__func__); }
    int setColorTemp(int value) override { return call<int>(__func__, value); }
    int getSaturation() override { return call<int>(__func__); }
    int setSaturation(int value) override { return call<int>(__func__, value); }
    int getSharpness() override { return call<int>(__func__); }
    int setSharpness(int value) override { return call<int>(__func__, value); }
    int getContrast() override { return call<int>(__func__); }
    int setContrast(int value) override { return call<int>(__func__, value); }
    int getHue() override { return call<int>(__func__); }
    int setHue(int value) override { return call<int>(__func__, value); }
    int getPictureMode() override { return call<int>(__func__); }
    int setPictureMode(int value) override { return call<int>(__func__, value); }
    int getGammaMode() override { return call<int>(__func__); }
    int setGammaMode(int value) override { return call<int>(__func__, value); }
    int getBrightness() override { return call<int>(__func__); }
    int setBrightness(int value) override { return call<int>(__func__, value); }
    int getPQRGainWithoutSave() override { return call<int>(__func__); }
    int setPQRGainWithoutSave(int value) override { return call<int>(__func__, value); }
    int getPQGGainWithoutSave() override { return call<int>(__func__); }
    int setPQGGainWithoutSave(int value) override { return call<int>(__func__, value); }
    int getPQBGainWithoutSave() override { return call<int>(__func__); }
    int setPQBGainWithoutSave(int value) override { return call<int>(__func__, value); }
    int setPresetColorTempMode(int value1, int value2, int value3, int value4,
                               int value5) override {
        return call<int>(__func__, value1, value2, value3, value4, value5);
    }
    PresetColorTempRgb getPresetColorTempMode(int path, int index) override {
        return call<PresetColorTempRgb>(__func__, path, index);
    }
    int resetWhiteBalance() override { return call<int>(__func__); }
    int getEyePqmodeindex() override { return call<int>(__func__); }
    int getAspectMode() override { return call<int>(__func__); }
    bool setAspectMode(int mode) override { return call<bool>(__func__, mode); }

private:
    static constexpr const char* kDefaults = R"({
        "getDCREnable": false, "setDCREnable": 0,
        "getDBCEnable": true, "setDBCEnable": 0,
        "getPQRGain": 128, "setPQRGain": 0,
        "getPQGGain": 124, "setPQGGain": 0,
        "getPQBGain": 118, "setPQBGain": 0,
        "getColorTemp": 1, "setColorTemp": 0,
        "getSaturation": 50, "setSaturation": 0,
        "getSharpness": 40, "setSharpness": 0,
        "getContrast": 50, "setContrast": 0,
        "getHue": 50, "setHue": 0,
        "getPictureMode": 0, "setPictureMode": 0,
        "getGammaMode": 2, "setGammaMode": 0,
        "getBrightness": 50, "setBrightness": 0,
        "getPQRGainWithoutSave": 128, "setPQRGainWithoutSave": 0,
        "getPQGGainWithoutSave": 124, "setPQGGainWithoutSave": 0,
        "getPQBGainWithoutSave": 118, "setPQBGainWithoutSave": 0,
        "setPresetColorTempMode": 0,
        "getPresetColorTempMode": {"r": 128, "g": 120, "b": 110},
        "resetWhiteBalance": 0,
        "getEyePqmodeindex": 0,
        "getAspectMode": 1, "setAspectMode": true
    })";
};

}  // namespace

template <>
android::IPQCtrl* sim::make<android::IPQCtrl>() {
    return new SimPQCtrl;
}
