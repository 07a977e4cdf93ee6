#pragma once

#include <utils/RefBase.h>

namespace android {

class IBacklightCtrl : public RefBase {
public:

protected:
    ~IBacklightCtrl() override = default;
};

}  // namespace android
