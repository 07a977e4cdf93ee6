#pragma once

#include <utils/RefBase.h>

namespace android {

class IBurnMacCtrl : public RefBase {
public:

protected:
    ~IBurnMacCtrl() override = default;
};

}  // namespace android
