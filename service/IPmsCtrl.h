#pragma once

#include <utils/RefBase.h>

namespace android {

class IPmsCtrl : public RefBase {
public:

protected:
    ~IPmsCtrl() override = default;
};

}  // namespace android
