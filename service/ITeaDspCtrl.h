#pragma once

#include <utils/RefBase.h>

namespace android {

class ITeaDspCtrl : public RefBase {
public:

protected:
    ~ITeaDspCtrl() override = default;
};

}  // namespace android
