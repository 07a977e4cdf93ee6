#pragma once

#include <utils/RefBase.h>

namespace android {

class IAnionCtrl : public RefBase {
public:
    virtual int setAnionStatus(int status) = 0;

protected:
    ~IAnionCtrl() override = default;
};

}  // namespace android
