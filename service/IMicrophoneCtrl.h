#pragma once

#include <utils/RefBase.h>

namespace android {

class IMicrophoneCtrl : public RefBase {
public:

protected:
    ~IMicrophoneCtrl() override = default;
};

}  // namespace android
