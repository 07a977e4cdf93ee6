#pragma once

#include <utils/RefBase.h>

namespace android {

class IPcModuleCtrl : public RefBase {
public:

protected:
    ~IPcModuleCtrl() override = default;
};

}  // namespace android
