#pragma once

#include <utils/RefBase.h>
#include <utils/String16.h>

namespace android {

// The format of the incoming AV signal.
struct AvSignalFormat {
    int width = 0;
    int height = 0;
    int refresh = 0;
    bool interlaced = false;
    bool ycbcr = false;
    bool fullrange = false;
    int subsampling = 0;
    int colorspace = 0;
    int depth = 0;
    bool hdr = false;
    int audio = 0;
    int channels = 0;
    int fidelity = 0;
    int samples = 0;
    bool drm = false;
    bool dsc = false;
};

class IAvManagerCtrl : public RefBase {
public:
    virtual void init() = 0;
    virtual void release() = 0;
    virtual void setDspVolume(int channel, int volume) = 0;
    virtual void setDspUsbEnable(bool enable) = 0;
    virtual bool getDspUsbEnable() = 0;
    virtual void setSpkOutPutMode(int mode) = 0;
    virtual int getSpkOutPutMode() = 0;
    virtual bool setMicAlgorithm(int type, bool enable) = 0;
    virtual bool getMicAlgorithm(int type) = 0;
    virtual bool setMicAlgorithmParameters(int type, int value) = 0;
    virtual bool setMicVolume(int vol) = 0;
    virtual int getMicVolume() = 0;
    virtual bool isMicAvailable() = 0;
    virtual bool enableMic(bool enable) = 0;
    virtual String16 getSN() = 0;
    virtual bool setCameraZoomIn() = 0;
    virtual bool setCameraZoomOut() = 0;
    virtual bool setCameraMoveUp() = 0;
    virtual bool setCameraMoveDown() = 0;
    virtual bool setCameraMoveLeft() = 0;
    virtual bool setCameraMoveRight() = 0;
    virtual bool setCameraPresetPosition(int position) = 0;
    virtual int getCameraPresetPosition() = 0;
    virtual bool gotoCameraPresetPosition(int position) = 0;
    virtual bool delCameraPresetPosition(int position) = 0;
    virtual int transferDoaData(int doa) = 0;
    virtual int setCameraPtzMode(int mode) = 0;
    virtual int getCameraPtzMode() = 0;
    virtual String16 getDspOtaModule() = 0;
    virtual AvSignalFormat get_av_signal_format() = 0;
    virtual bool setCameraZoomReset() = 0;
    virtual int setCameraPipMode(int mode) = 0;
    virtual int getCameraPipMode() = 0;
    virtual int setCameraAisrStatus(int mode) = 0;
    virtual int getCameraAisrStatus() = 0;
    virtual int setCameraHdr(int mode) = 0;
    virtual int getCameraHdr() = 0;

protected:
    ~IAvManagerCtrl() override = default;
};

}  // namespace android
