#pragma once

#include <utils/RefBase.h>

namespace android {

class ICameraCtrl : public RefBase {
public:

protected:
    ~ICameraCtrl() override = default;
};

}  // namespace android
