#pragma once

#include <utils/RefBase.h>

namespace android {

class IExtendDisplayCtrl : public RefBase {
public:

protected:
    ~IExtendDisplayCtrl() override = default;
};

}  // namespace android
