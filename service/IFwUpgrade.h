#pragma once

#include <utils/RefBase.h>

namespace android {

class IFwUpgrade : public RefBase {
public:

protected:
    ~IFwUpgrade() override = default;
};

}  // namespace android
