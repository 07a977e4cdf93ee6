#pragma once

#include <utils/RefBase.h>

namespace android {

class INetworkCtrl : public RefBase {
public:

protected:
    ~INetworkCtrl() override = default;
};

}  // namespace android
