#include <cstdlib>
#include <iostream>
#include <memory>
#include <string>
#include <vector>

#include "framework/ListCommand.h"
#include "framework/Rows.h"
#include "service/IAvManagerCtrl.h"

namespace android {
namespace dumpbrel {

class AvmanagerCommand : public ListCommand {
public:
    explicit AvmanagerCommand(DumpBrel& parent);
    std::string getName() const override { return mName; }
    std::string getSimpleDescription() const override { return "Avmanager Module"; }
    Status registerAllOptions() override;

private:
    std::string mName;
    sp<IAvManagerCtrl> mAvManagerCtrl;
};

AvmanagerCommand::AvmanagerCommand(DumpBrel& parent)
    : ListCommand(parent),
      mName("AvManager"),
      mAvManagerCtrl(connect(&IBrelManager::getAvManagerCtrl, "getAvManagerCtrl() fail\n")) {}

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
    add("e:", "setDspUsbEnable", kRequired, mAvManagerCtrl,
        printAtoi("setDspUsbEnable: ", &Av::setDspUsbEnable, trueFalse));
    add("u", "getDspUsbEnable", kNone, mAvManagerCtrl,
        printResult("getDspUsbEnable: ", &Av::getDspUsbEnable, trueFalse));
    add("r", "release", kNone, mAvManagerCtrl, printWhenDone("release ok", &Av::release));
    add("i", "init", kNone, mAvManagerCtrl, printWhenDone("init ok", &Av::init));
    add("o:", "setSpkOutPutMode", kRequired, mAvManagerCtrl,
        printAtoi("setSpkOutPutMode ok, mode = ", &Av::setSpkOutPutMode));
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
    add("s:", "setMicVolume", kRequired, mAvManagerCtrl,
        printAtoiAndResult("setMicVolume vol = ", &Av::setMicVolume, " ret = "));
    add("g", "getMicVolume", kNone, mAvManagerCtrl,
        printResult("getMicVolume vol = ", &Av::getMicVolume));
    add("a", "isMicAvailable", kNone, mAvManagerCtrl,
        printResult("isMicAvailable: ", &Av::isMicAvailable, trueFalse));
    add("s:", "enableMic", kRequired, mAvManagerCtrl,
        printAtoiAndResult("enableMic enalbe = ", &Av::enableMic, " ret = "));
    add("n", "getSN", kNone, mAvManagerCtrl, printResult("getSN: ", &Av::getSN));
    add("x", "getCameraPtzMode", kNone, mAvManagerCtrl,
        printResult("getCameraPtzMode: ", &Av::getCameraPtzMode));
    add("z:", "setCameraPtzMode", kRequired, mAvManagerCtrl,
        printAtoiAndResult("setCameraPtzMode mode = ",
                           &Av::setCameraPtzMode, " ret = ", oneOrZero));
    add("z:", "setCameraPipMode", kRequired, mAvManagerCtrl,
        printAtoiAndResult("setCameraPipMode mode = ",
                           &Av::setCameraPipMode, " ret = ", oneOrZero));
    add("x", "getCameraPipMode", kNone, mAvManagerCtrl,
        printResult("getCameraPipMode: ", &Av::getCameraPipMode));
    add("z:", "setCameraAisrStatus", kRequired, mAvManagerCtrl,
        printAtoiAndResult("setCameraAisrStatus mode = ",
                           &Av::setCameraAisrStatus, " ret = ", oneOrZero));
    add("x", "getCameraAisrStatus", kNone, mAvManagerCtrl,
        printResult("getCameraAisrStatus: ", &Av::getCameraAisrStatus));
    add("z:", "setCameraHdr", kRequired, mAvManagerCtrl,
        printAtoiAndResult("setCameraHdr mode = ", &Av::setCameraHdr, " ret = ", oneOrZero));
    add("x", "getCameraHdr", kNone, mAvManagerCtrl,
        printResult("getCameraHdr: ", &Av::getCameraHdr));
    add("j:", "transferDoaData", kRequired, mAvManagerCtrl,
        printAtoiAndResult("transferDoaData doa = ", &Av::transferDoaData, " ret = ", oneOrZero));
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
        printResultForAtoi("setCameraPresetPosition, ret = ", &Av::setCameraPresetPosition));
    add("g", "getCameraPresetPosition", kNone, mAvManagerCtrl,
        printResult("getCameraPresetPosition: ", &Av::getCameraPresetPosition));
    add("s", "delCameraPresetPosition", kRequired, mAvManagerCtrl,
        printResultForAtoi("delCameraPresetPosition, ret = ", &Av::delCameraPresetPosition));
    add("y", "gotoCameraPresetPosition", kRequired, mAvManagerCtrl,
        printResultForAtoi("gotoCameraPresetPosition, ret = ", &Av::gotoCameraPresetPosition));
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
