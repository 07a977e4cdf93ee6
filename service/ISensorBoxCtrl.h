#pragma once

#include <utils/RefBase.h>

namespace android {

class ISensorBoxCtrl : public RefBase {
public:

protected:
    ~ISensorBoxCtrl() override = default;
};

}  // namespace android
