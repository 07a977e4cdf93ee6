#pragma once

#include <utils/RefBase.h>

namespace android {

class IXbugCtrl : public RefBase {
public:

protected:
    ~IXbugCtrl() override = default;
};

}  // namespace android
