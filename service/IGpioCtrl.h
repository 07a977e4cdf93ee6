#pragma once

#include <utils/RefBase.h>

namespace android {

class IGpioCtrl : public RefBase {
public:

protected:
    ~IGpioCtrl() override = default;
};

}  // namespace android
