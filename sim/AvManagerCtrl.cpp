#include "Panel.h"
#include "Records.h"
#include "service/IAvManagerCtrl.h"

namespace {

using android::AvSignalFormat;
using android::String16;

class SimAvManagerCtrl : public sim::Control<android::IAvManagerCtrl> {
public:
    SimAvManagerCtrl() : Control("IAvManagerCtrl", kDefaults) {}

    void init() override { call(__func__); }
    void release() override { call(__func__); }
    void setDspVolume(int channel, int volume) override { call(__func__, channel, volume); }
    void setDspUsbEnable(bool enable) override { call(__func__, enable); }
    bool getDspUsbEnable() override { return call<bool>(__func__); }
    void setSpkOutPutMode(int mode) override { call(__func__, mode); }
    int getSpkOutPutMode() override { return call<int>(__func__); }
    bool setMicAlgorithm(int type, bool enable) override {
        return call<bool>(__func__, type, enable);
    }
    bool getMicAlgorithm(int type) override { return call<bool>(__func__, type); }
    bool setMicAlgorithmParameters(int type, int value) override {
        return call<bool>(__func__, type, value);
    }
    bool setMicVolume(int vol) override { return call<bool>(__func__, vol); }
    int getMicVolume() override { return call<int>(__func__); }
    bool isMicAvailable() override { return call<bool>(__func__); }
    bool enableMic(bool enable) override { return call<bool>(__func__, enable); }
    String16 getSN() override { return call<String16>(__func__); }
    bool setCameraZoomIn() override { return call<bool>(__func__); }
    bool setCameraZoomOut() override { return call<bool>(__func__); }
    bool setCameraMoveUp() override { return call<bool>(__func__); }
    bool setCameraMoveDown() override { return call<bool>(__func__); }
    bool setCameraMoveLeft() override { return call<bool>(__func__); }
    bool setCameraMoveRight() override { return call<bool>(__func__); }
    bool setCameraPresetPosition(int position) override { return call<bool>(__func__, position); }
    int getCameraPresetPosition() override { return call<int>(__func__); }
    bool gotoCameraPresetPosition(int position) override { return call<bool>(__func__, position); }
    bool delCameraPresetPosition(int position) override { return call<bool>(__func__, position); }
    int transferDoaData(int doa) override { return call<int>(__func__, doa); }
    int setCameraPtzMode(int mode) override { return call<int>(__func__, mode); }
    int getCameraPtzMode() override { return call<int>(__func__); }
    String16 getDspOtaModule() override { return call<String16>(__func__); }
    AvSignalFormat get_av_signal_format() override { return call<AvSignalFormat>(__func__); }
    bool setCameraZoomReset() override { return call<bool>(__func__); }
    int setCameraPipMode(int mode) override { return call<int>(__func__, mode); }
    int getCameraPipMode() override { return call<int>(__func__); }
    int setCameraAisrStatus(int mode) override { return call<int>(__func__, mode); }
    int getCameraAisrStatus() override { return call<int>(__func__); }
    int setCameraHdr(int mode) override { return call<int>(__func__, mode); }
    int getCameraHdr() override { return call<int>(__func__); }

private:
    static constexpr const char* kDefaults = R"({
        "getDspUsbEnable": true,
        "getSpkOutPutMode": 1,
        "setMicAlgorithm": false, "getMicAlgorithm": true, "setMicAlgorithmParameters": true,
        "setMicVolume": true, "getMicVolume": 80,
        "isMicAvailable": true, "enableMic": true,
        "getSN": "BRL65C2310A0042",
        "setCameraZoomIn": true, "setCameraZoomOut": true, "setCameraZoomReset": true,
        "setCameraMoveUp": true, "setCameraMoveDown": true,
        "setCameraMoveLeft": true, "setCameraMoveRight": true,
        "setCameraPresetPosition": true, "getCameraPresetPosition": 1,
        "gotoCameraPresetPosition": true, "delCameraPresetPosition": true,
        "transferDoaData": 0,
        "setCameraPtzMode": 0, "getCameraPtzMode": 1,
        "getDspOtaModule": "TEA-DSP 2.4.1",
        "get_av_signal_format": {
            "width": 3840, "height": 2160, "refresh": 60,
            "interlaced": false, "ycbcr": true, "fullrange": false,
            "subsampling": 2, "colorspace": 1, "depth": 10, "hdr": true,
            "audio": 1, "channels": 2, "fidelity": 24, "samples": 48000,
            "drm": false, "dsc": false
        },
        "setCameraPipMode": 0, "getCameraPipMode": 0,
        "setCameraAisrStatus": 0, "getCameraAisrStatus": 1,
        "setCameraHdr": 0, "getCameraHdr": 0
    })";
};

}  // namespace

template <>
android::IAvManagerCtrl* sim::make<android::IAvManagerCtrl>() {
    return new SimAvManagerCtrl;
}
