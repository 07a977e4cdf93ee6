#pragma once

#include <utils/RefBase.h>

namespace android {

class IAudioCtrl : public RefBase {
public:

protected:
    ~IAudioCtrl() override = default;
};

}  // namespace android
