#pragma once

#include <utils/RefBase.h>

namespace android {

class IDeviceCtrl : public RefBase {
public:

protected:
    ~IDeviceCtrl() override = default;
};

}  // namespace android
