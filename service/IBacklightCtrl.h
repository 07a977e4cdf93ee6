#pragma once

#include <utils/RefBase.h>

namespace android {

class IBacklightCtrl : public RefBase {
public:
    virtual int getScreenBrightness() = 0;
    virtual int setScreenBrightness(int value) = 0;
    virtual int getScreenMaxBrightness() = 0;
    virtual int setScreenMaxBrightness(int value) = 0;

protected:
    ~IBacklightCtrl() override = default;
};

}  // namespace android
