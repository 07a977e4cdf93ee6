#include <cstdlib>
#include <iostream>
#include <memory>
#include <string>
#include <vector>

#include "framework/Getters.h"
#include "framework/ListCommand.h"
#include "service/IAvManagerCtrl.h"

namespace android {
namespace dumpbrel {

class AvmanagerCommand : public ListCommand {
public:
    explicit AvmanagerCommand(DumpBrel& parent);
    std::string getName() const override { return mName; }
    std::string getSimpleDescription() const override;
    Status registerAllOptions() override;

private:
    std::string mName;
    sp<IAvManagerCtrl> mAvManagerCtrl;
};

namespace {

// A camera mode (or the DOA data) set by an atoi number: `label`, the number, " ret = " and
// 1 when the result is not 0, else 0.
auto setCameraMode(const char* label, int (IAvManagerCtrl::*op)(int)) {
    return [label, op](IAvManagerCtrl& av, const Input& in) -> Status {
        if (in.missing()) return USAGE;
        int mode = atoi(in.text);
        std::cout << label << mode << " ret = " << ((av.*op)(mode) != 0 ? 1 : 0) << '\n';
        return OK;
    };
}

// A camera preset handled by its atoi number: `label` and the result as 0 or 1.
auto presetPosition(const char* label, bool (IAvManagerCtrl::*op)(int)) {
    return [label, op](IAvManagerCtrl& av, const Input& in) -> Status {
        if (in.missing()) return USAGE;
        std::cout << label << (av.*op)(atoi(in.text)) << '\n';
        return OK;
    };
}

}  // namespace

AvmanagerCommand::AvmanagerCommand(DumpBrel& parent)
    : ListCommand(parent),
      mName("AvManager"),
      mAvManagerCtrl(connect(&IBrelManager::getAvManagerCtrl, "getAvManagerCtrl() fail\n")) {}

std::string AvmanagerCommand::getSimpleDescription() const {
    return "Avmanager Module";
}

Status AvmanagerCommand::registerAllOptions() {
    using Av = IAvManagerCtrl;
    addHelp();
    add("v:", "setDspVolume", kRequired, mAvManagerCtrl,
        [](Av& av, const Input& in) {
            if (in.missing()) return USAGE;
            std::vector<std::string> f = in.fields(2);
            std::cout << "channel: " << f[0] << " volume: " << f[1] << '\n';
            if (f[0].empty() || f[1].empty()) return USAGE;
            int channel = atoi(f[0].c_str());
            int volume = atoi(f[1].c_str());
            std::cout << "channel: " << channel << " volume: " << volume << '\n';
            av.setDspVolume(channel, volume);
            return OK;
        },
        "channel[0-uac 1-spdif 2-main 4-left balance 5-right balance 6-bottom tweeter 7-top "
        "tweeter],volume[0-100]\n");
    add("e:", "setDspUsbEnable", kRequired, mAvManagerCtrl, [](Av& av, const Input& in) {
        bool enable = atoi(in.text) != 0;
        av.setDspUsbEnable(enable);
        std::cout << "setDspUsbEnable: " << trueFalse(enable) << '\n';
        return OK;
    });
    add("u", "getDspUsbEnable", kNone, mAvManagerCtrl,
        printTrueFalse("getDspUsbEnable: ", &Av::getDspUsbEnable));
    add("r", "release", kNone, mAvManagerCtrl, [](Av& av, const Input&) {
        av.release();
        std::cout << "release ok" << '\n';
        return OK;
    });
    add("i", "init", kNone, mAvManagerCtrl, [](Av& av, const Input&) {
        av.init();
        std::cout << "init ok" << '\n';
        return OK;
    });
    add("o:", "setSpkOutPutMode", kRequired, mAvManagerCtrl, [](Av& av, const Input& in) {
        int mode = atoi(in.text);
        av.setSpkOutPutMode(mode);
        std::cout << "setSpkOutPutMode ok, mode = " << mode << '\n';
        return OK;
    });
    add("g", "getSpkOutPutMode", kNone, mAvManagerCtrl,
        printResult("getSpkOutPutMode ok, mode = ", &Av::getSpkOutPutMode));
    // The one row whose true result means failure.
    add("a:", "setMicAlgorithm", kRequired, mAvManagerCtrl, [](Av& av, const Input& in) {
        std::vector<std::string> f = in.fields(2);
        bool enable = atoi(f[1].c_str()) != 0;
        bool failed = av.setMicAlgorithm(atoi(f[0].c_str()), enable);
        std::cout << "setMicAlgorithm ok" << (failed ? "fail" : "success") << ", type = " << f[0]
                  << ", enable = " << trueFalse(enable) << '\n';
        return OK;
    });
    add("m:", "getMicAlgorithm", kRequired, mAvManagerCtrl, [](Av& av, const Input& in) {
        int type = atoi(in.text);
        std::cout << "getMicAlgorithm ok, type = " << type
                  << " ,enable = " << trueFalse(av.getMicAlgorithm(type)) << '\n';
        return OK;
    });
    add("p:", "setMicAlgorithmParameters", kRequired, mAvManagerCtrl,
        [](Av& av, const Input& in) {
            std::vector<std::string> f = in.fields(2);
            int type = atoi(f[0].c_str());
            int value = atoi(f[1].c_str());
            std::cout << "setMicAlgorithmParameters type = " << type << " value = " << value
                      << " ret = " << av.setMicAlgorithmParameters(type, value) << '\n';
            return OK;
        });
    add("s:", "setMicVolume", kRequired, mAvManagerCtrl, [](Av& av, const Input& in) {
        if (in.missing()) return USAGE;
        int vol = atoi(in.text);
        std::cout << "setMicVolume vol = " << vol << " ret = " << av.setMicVolume(vol) << '\n';
        return OK;
    });
    add("g", "getMicVolume", kNone, mAvManagerCtrl,
        printResult("getMicVolume vol = ", &Av::getMicVolume));
    add("a", "isMicAvailable", kNone, mAvManagerCtrl,
        printTrueFalse("isMicAvailable: ", &Av::isMicAvailable));
    add("s:", "enableMic", kRequired, mAvManagerCtrl, [](Av& av, const Input& in) {
        if (in.missing()) return USAGE;
        bool enable = atoi(in.text) != 0;
        std::cout << "enableMic enalbe = " << enable << " ret = " << av.enableMic(enable) << '\n';
        return OK;
    });
    add("n", "getSN", kNone, mAvManagerCtrl, printResult("getSN: ", &Av::getSN));
    add("x", "getCameraPtzMode", kNone, mAvManagerCtrl,
        printResult("getCameraPtzMode: ", &Av::getCameraPtzMode));
    add("z:", "setCameraPtzMode", kRequired, mAvManagerCtrl,
        setCameraMode("setCameraPtzMode mode = ", &Av::setCameraPtzMode));
    add("z:", "setCameraPipMode", kRequired, mAvManagerCtrl,
        setCameraMode("setCameraPipMode mode = ", &Av::setCameraPipMode));
    add("x", "getCameraPipMode", kNone, mAvManagerCtrl,
        printResult("getCameraPipMode: ", &Av::getCameraPipMode));
    add("z:", "setCameraAisrStatus", kRequired, mAvManagerCtrl,
        setCameraMode("setCameraAisrStatus mode = ", &Av::setCameraAisrStatus));
    add("x", "getCameraAisrStatus", kNone, mAvManagerCtrl,
        printResult("getCameraAisrStatus: ", &Av::getCameraAisrStatus));
    add("z:", "setCameraHdr", kRequired, mAvManagerCtrl,
        setCameraMode("setCameraHdr mode = ", &Av::setCameraHdr));
    add("x", "getCameraHdr", kNone, mAvManagerCtrl,
        printResult("getCameraHdr: ", &Av::getCameraHdr));
    add("j:", "transferDoaData", kRequired, mAvManagerCtrl,
        setCameraMode("transferDoaData doa = ", &Av::transferDoaData));
    add("u", "getDspOtaModule", kNone, mAvManagerCtrl,
        printResult("getDspOtaModule: ", &Av::getDspOtaModule));
    add("u", "setCameraMoveUp", kNone, mAvManagerCtrl,
        printResult("setCameraMoveUp, ret = ", &Av::setCameraMoveUp));
    add("d", "setCameraMoveDown", kNone, mAvManagerCtrl,
        printResult("setCameraMoveDown, ret = ", &Av::setCameraMoveDown));
    add("l", "setCameraMoveLeft", kNone, mAvManagerCtrl,
        printResult("setCameraMoveLeft, ret = ", &Av::setCameraMoveLeft));
    add("r", "setCameraMoveRight", kNone, mAvManagerCtrl,
        printResult("setCameraMoveRight, ret = ", &Av::setCameraMoveRight));
    add("i", "setCameraZoomIn", kNone, mAvManagerCtrl,
        printResult("setCameraZoomIn, ret = ", &Av::setCameraZoomIn));
    add("o", "setCameraZoomOut", kNone, mAvManagerCtrl,
        printResult("setCameraZoomOut, ret = ", &Av::setCameraZoomOut));
    add("r", "setCameraZoomReset", kNone, mAvManagerCtrl,
        printResult("setCameraZoomReset, ret = ", &Av::setCameraZoomReset));
    // The presets need an argument in their long form; their letters take none.
    add("s", "setCameraPresetPosition", kRequired, mAvManagerCtrl,
        presetPosition("setCameraPresetPosition, ret = ", &Av::setCameraPresetPosition));
    add("g", "getCameraPresetPosition", kNone, mAvManagerCtrl,
        printResult("getCameraPresetPosition: ", &Av::getCameraPresetPosition));
    add("s", "delCameraPresetPosition", kRequired, mAvManagerCtrl,
        presetPosition("delCameraPresetPosition, ret = ", &Av::delCameraPresetPosition));
    add("y", "gotoCameraPresetPosition", kRequired, mAvManagerCtrl,
        presetPosition("gotoCameraPresetPosition, ret = ", &Av::gotoCameraPresetPosition));
    add("f", "get_av_signal_format", kNone, mAvManagerCtrl, [](Av& av, const Input&) {
        AvSignalFormat av_format = av.get_av_signal_format();
        std::cout << "av_format.width = " << av_format.width << '\n'
                  << "av_format.height = " << av_format.height << '\n'
                  << "av_format.refresh = " << av_format.refresh << '\n'
                  << "av_format.interlaced = " << av_format.interlaced << '\n'
                  << "av_format.ycbcr = " << av_format.ycbcr << '\n'
                  << "av_format.fullrange = " << av_format.fullrange << '\n'
                  << "av_format.subsampling = " << av_format.subsampling << '\n'
                  << "av_format.colorspace = " << av_format.colorspace << '\n'
                  << "av_format.depth = " << av_format.depth << '\n'
                  << "av_format.hdr = " << av_format.hdr << '\n'
                  << "av_format.audio = " << av_format.audio << '\n'
                  << "av_format.channels = " << av_format.channels << '\n'
                  << "av_format.fidelity = " << av_format.fidelity << '\n'
                  << "av_format.samples = " << av_format.samples << '\n'
                  << "av_format.drm = " << av_format.drm << '\n'
                  << "av_format.dsc = " << av_format.dsc << '\n';
        return OK;
    });
    return OK;
}

std::unique_ptr<ListCommand> newAvmanagerCommand(DumpBrel& parent) {
    return std::make_unique<AvmanagerCommand>(parent);
}

}  // namespace dumpbrel
}  // namespace android
