#pragma once

#include <utils/RefBase.h>

namespace android {

class ILandscapeCtrl : public RefBase {
public:

protected:
    ~ILandscapeCtrl() override = default;
};

}  // namespace android
