#pragma once

#include <utils/RefBase.h>

namespace android {

class IDebugCtrl : public RefBase {
public:

protected:
    ~IDebugCtrl() override = default;
};

}  // namespace android
