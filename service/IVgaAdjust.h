#pragma once

#include <utils/RefBase.h>

namespace android {

class IVgaAdjust : public RefBase {
public:
    virtual int setvgaAdjustData(int type, int val) = 0;
    virtual int getvgaAdjustData(int type) = 0;

protected:
    ~IVgaAdjust() override = default;
};

}  // namespace android
