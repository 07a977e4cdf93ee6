#pragma once

#include <utils/RefBase.h>

namespace android {

struct SoundScreenAngle {
    int start_angle = 0;
    int end_angle = 0;
};

class ISoundScreenAngleCtrl : public RefBase {
public:
    // false is success.
    virtual bool setSoundScreenAngle(int start_angle, int end_angle) = 0;
    virtual SoundScreenAngle getSoundScreenAngle() = 0;

protected:
    ~ISoundScreenAngleCtrl() override = default;
};

}  // namespace android
