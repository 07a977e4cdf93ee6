#pragma once

#include <utils/RefBase.h>

namespace android {

class IBurnKeyCtrl : public RefBase {
public:

protected:
    ~IBurnKeyCtrl() override = default;
};

}  // namespace android
