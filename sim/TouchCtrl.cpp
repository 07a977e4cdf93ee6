#include "Panel.h"
#include "Records.h"
#include "service/ITouchCtrl.h"

namespace {

using android::String16;
using android::TouchRect;

class SimTouchCtrl : public sim::Control<android::ITouchCtrl> {
public:
    SimTouchCtrl() : Control("ITouchCtrl", kDefaults) {}

    int getpennum() override { return call<int>(__func__); }
    bool setpennum(int value) override { return call<bool>(__func__, value); }
    String16 getParameter(const String16& key) override { return call<String16>(__func__, key); }
    void setParameter(const String16& key, const String16& value) override { call(__func__, key, value); }
    void addNoTouchArea(TouchRect rect) override { call(__func__, rect); }
    String16 getHidMode() override { return call<String16>(__func__); }
    bool setPressureMode(int mode) override { return call<bool>(__func__, mode); }
    int getPressureMode() override { return call<int>(__func__); }
    bool setAndroidForbiddenState(int state) override { return call<bool>(__func__, state); }
    bool getAndroidForbiddenState() override { return call<bool>(__func__); }
    bool setTouchSmothingFliter(int value) override { return call<bool>(__func__, value); }
    int getTouchSmothingFliter() override { return call<int>(__func__); }
    int getTouchAreaRecognitionMethod() override { return call<int>(__func__); }

private:
    static constexpr const char* kDefaults = R"({
        "getpennum": 2,
        "setpennum": true,
        "getParameter": "1",
        "getHidMode": "MultiTouch",
        "setPressureMode": true,
        "getPressureMode": 1,
        "setAndroidForbiddenState": true,
        "getAndroidForbiddenState": false,
        "setTouchSmothingFliter": true,
        "getTouchSmothingFliter": 3,
        "getTouchAreaRecognitionMethod": 1
    })";
};

}  // namespace

template <>
android::ITouchCtrl* sim::make<android::ITouchCtrl>() {
    return new SimTouchCtrl;
}
