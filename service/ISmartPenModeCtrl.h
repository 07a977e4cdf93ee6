#pragma once

#include <utils/RefBase.h>

namespace android {

class ISmartPenModeCtrl : public RefBase {
public:

protected:
    ~ISmartPenModeCtrl() override = default;
};

}  // namespace android
