#pragma once

#include <utils/RefBase.h>

namespace android {

class ISuspendCtrl : public RefBase {
public:
    // true: suspended, false: resumed.
    virtual bool getSuspendStatus() = 0;
    virtual int setSuspendStatus(bool suspend) = 0;

protected:
    ~ISuspendCtrl() override = default;
};

}  // namespace android
