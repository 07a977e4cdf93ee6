#pragma once

#include <utils/RefBase.h>

namespace android {

class IVgaAdjust : public RefBase {
public:

protected:
    ~IVgaAdjust() override = default;
};

}  // namespace android
