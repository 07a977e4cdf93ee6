#pragma once

#include <utils/RefBase.h>

namespace android {

class IPQCtrl : public RefBase {
public:

protected:
    ~IPQCtrl() override = default;
};

}  // namespace android
