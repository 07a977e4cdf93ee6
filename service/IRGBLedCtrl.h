#pragma once

#include <utils/RefBase.h>

namespace android {

class IRGBLedCtrl : public RefBase {
public:

protected:
    ~IRGBLedCtrl() override = default;
};

}  // namespace android
