#pragma once

#include <utils/RefBase.h>

namespace android {

// One entry of the preset colour temperatures.
struct PresetColorTempRgb {
    int r = 0;
    int g = 0;
    int b = 0;
};

class IPQCtrl : public RefBase {
public:
    virtual bool getDCREnable() = 0;
    virtual int setDCREnable(bool enable) = 0;
    virtual bool getDBCEnable() = 0;
    virtual int setDBCEnable(bool enable) = 0;
    virtual int getPQRGain() = 0;
    virtual int setPQRGain(int value) = 0;
    virtual int getPQGGain() = 0;
    virtual int setPQGGain(int value) = 0;
    virtual int getPQBGain() = 0;
    virtual int setPQBGain(int value) = 0;
    virtual int getColorTemp() = 0;
    virtual int setColorTemp(int value) = 0;
    virtual int getSaturation() = 0;
    virtual int setSaturation(int value) = 0;
    virtual int getSharpness() = 0;
    virtual int setSharpness(int value) = 0;
    virtual int getContrast() = 0;
    virtual int setContrast(int value) = 0;
    virtual int getHue() = 0;
    virtual int setHue(int value) = 0;
    virtual int getPictureMode() = 0;
    virtual int setPictureMode(int value) = 0;
    virtual int getGammaMode() = 0;
    virtual int setGammaMode(int value) = 0;
    virtual int getBrightness() = 0;
    virtual int setBrightness(int value) = 0;
    virtual int getPQRGainWithoutSave() = 0;
    virtual int setPQRGainWithoutSave(int value) = 0;
    virtual int getPQGGainWithoutSave() = 0;
    virtual int setPQGGainWithoutSave(int value) = 0;
    virtual int getPQBGainWithoutSave() = 0;
    virtual int setPQBGainWithoutSave(int value) = 0;
    // The five values of the entry, in the order the user gives them.
    virtual int setPresetColorTempMode(int value1, int value2, int value3, int value4,
                                       int value5) = 0;
    virtual PresetColorTempRgb getPresetColorTempMode(int path, int index) = 0;
    virtual int resetWhiteBalance() = 0;
    virtual int getEyePqmodeindex() = 0;
    virtual int getAspectMode() = 0;
    virtual bool setAspectMode(int mode) = 0;

protected:
    ~IPQCtrl() override = default;
};

}  // namespace android
