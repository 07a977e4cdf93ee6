#pragma once

#include <utils/RefBase.h>

namespace android {

class ISuspendCtrl : public RefBase {
public:

protected:
    ~ISuspendCtrl() override = default;
};

}  // namespace android
