#pragma once

#include <utils/RefBase.h>

namespace android {

class IAiNoiseCtrl : public RefBase {
public:

protected:
    ~IAiNoiseCtrl() override = default;
};

}  // namespace android
