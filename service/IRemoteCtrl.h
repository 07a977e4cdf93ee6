#pragma once

#include <utils/RefBase.h>

namespace android {

class IRemoteCtrl : public RefBase {
public:

protected:
    ~IRemoteCtrl() override = default;
};

}  // namespace android
