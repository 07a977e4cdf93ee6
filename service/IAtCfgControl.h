#pragma once

#include <utils/RefBase.h>

namespace android {

class IAtCfgControl : public RefBase {
public:

protected:
    ~IAtCfgControl() override = default;
};

}  // namespace android
