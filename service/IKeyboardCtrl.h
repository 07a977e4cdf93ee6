#pragma once

#include <utils/RefBase.h>

namespace android {

class IKeyboardCtrl : public RefBase {
public:

protected:
    ~IKeyboardCtrl() override = default;
};

}  // namespace android
