#pragma once

#include <utils/RefBase.h>

namespace android {

class ISoundScreenAngleCtrl : public RefBase {
public:

protected:
    ~ISoundScreenAngleCtrl() override = default;
};

}  // namespace android
