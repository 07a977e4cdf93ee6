#pragma once

#include <utils/RefBase.h>

namespace android {

class ISystemCtrl : public RefBase {
public:

protected:
    ~ISystemCtrl() override = default;
};

}  // namespace android
