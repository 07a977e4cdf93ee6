#pragma once

#include <string>

#include <utils/RefBase.h>

namespace android {

// What getCameraDeviceInfo reports of one camera.
struct BrelCameraInfo {
    std::string info_text;
    int value_a = 0;
    int value_b = 0;
};

class ICameraCtrl : public RefBase {
public:
    virtual bool getCameraEnable() = 0;
    virtual bool setCameraEnable(bool state) = 0;
    // Fills `info`.
    virtual void getCameraDeviceInfo(int camera_id, BrelCameraInfo& info) = 0;

protected:
    ~ICameraCtrl() override = default;
};

}  // namespace android
