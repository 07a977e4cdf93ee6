#pragma once

#include <utils/RefBase.h>

namespace android {

class IMicrophoneCtrl : public RefBase {
public:
    virtual bool isBuildInMicEnabled(int mic_type) = 0;
    // true is success.
    virtual bool setBuildInMicEnabled(int mic_type, bool state) = 0;

protected:
    ~IMicrophoneCtrl() override = default;
};

}  // namespace android
