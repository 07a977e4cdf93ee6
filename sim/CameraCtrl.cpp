#include "Panel.h"
#include "Records.h"
#include "service/ICameraCtrl.h"

namespace {

class SimCameraCtrl : public sim::Control<android::ICameraCtrl> {
public:
    SimCameraCtrl() : Control("ICameraCtrl", kDefaults) {}

    bool getCameraEnable() override { return call<bool>(__func__); }
    bool setCameraEnable(bool state) override { return call<bool>(__func__, state); }
    void getCameraDeviceInfo(int camera_id, android::BrelCameraInfo& info) override {
        call(__func__, camera_id, sim::out("info", info));
    }

private:
    static constexpr const char* kDefaults = R"({
        "getCameraEnable": true,
        "setCameraEnable": true,
        "getCameraDeviceInfo": {"info": {"info_text": "UVC Camera ", "value_a": 1080, "value_b": 1920}}
    })";
};

}  // namespace

template <>
android::ICameraCtrl* sim::make<android::ICameraCtrl>() {
    return new SimCameraCtrl;
}
