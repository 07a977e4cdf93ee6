#pragma once
#include <utils/RefBase.h>

namespace android {

class IRaw : public RefBase {
public:
    virtual int getRaw(int* raw) = 0;
};

}  // namespace android
