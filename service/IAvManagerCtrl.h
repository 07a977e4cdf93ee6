#pragma once

#include <utils/RefBase.h>

namespace android {

class IAvManagerCtrl : public RefBase {
public:

protected:
    ~IAvManagerCtrl() override = default;
};

}  // namespace android
