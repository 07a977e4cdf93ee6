#pragma once

#include <utils/RefBase.h>

namespace android {

class IAiNoiseCtrl : public RefBase {
public:
    // value from 0.0 to 1.0; false is success.
    virtual bool setAiNoise(float value) = 0;
    virtual float getAiNoise() = 0;

protected:
    ~IAiNoiseCtrl() override = default;
};

}  // namespace android
