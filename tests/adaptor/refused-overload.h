#pragma once
#include <utils/RefBase.h>

namespace android {

class ITwice : public RefBase {
public:
    virtual int setLevel(int level) = 0;
    virtual int setLevel(int level, int ramp) = 0;
};

}  // namespace android
