#pragma once

#include <utils/RefBase.h>

namespace android {

class ITouchCtrl : public RefBase {
public:

protected:
    ~ITouchCtrl() override = default;
};

}  // namespace android
