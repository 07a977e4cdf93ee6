#pragma once

#include <utils/RefBase.h>

namespace android {

class ITxbCtrl : public RefBase {
public:

protected:
    ~ITxbCtrl() override = default;
};

}  // namespace android
