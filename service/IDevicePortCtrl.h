#pragma once

#include <utils/RefBase.h>

namespace android {

class IDevicePortCtrl : public RefBase {
public:

protected:
    ~IDevicePortCtrl() override = default;
};

}  // namespace android
