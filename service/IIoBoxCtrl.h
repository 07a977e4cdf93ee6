#pragma once

#include <utils/RefBase.h>

namespace android {

class IIoBoxCtrl : public RefBase {
public:

protected:
    ~IIoBoxCtrl() override = default;
};

}  // namespace android
