#include <cstdlib>
#include <iostream>
#include <memory>
#include <string>
#include <vector>

#include "framework/ListCommand.h"
#include "framework/Rows.h"
#include "service/IPQCtrl.h"

namespace android {
namespace dumpbrel {

class PQCtrlCommand : public ListCommand {
public:
    explicit PQCtrlCommand(DumpBrel& parent);
    std::string getName() const override { return mName; }
    std::string getSimpleDescription() const override { return "PQCtrl Module"; }
    Status registerAllOptions() override;

private:
    std::string mName;
    sp<IPQCtrl> mPQCtrl;
};

PQCtrlCommand::PQCtrlCommand(DumpBrel& parent)
    : ListCommand(parent),
      mName("PQCtrl"),
      mPQCtrl(connect(&IBrelManager::getPQCtrl, "getPQCtrol() fail\n")) {}

Status PQCtrlCommand::registerAllOptions() {
    using PQ = IPQCtrl;
    addHelp();
    add("x", "getPQRGain", kNone, mPQCtrl, printResult("Got R Gain: ", &PQ::getPQRGain));
    add("r:", "setPQRGain", kRequired, mPQCtrl,
        printTextAndResult("Set R Gain: ", &PQ::setPQRGain));
    add("y", "getPQGGain", kNone, mPQCtrl, printResult("Got G Gain: ", &PQ::getPQGGain));
    add("g:", "setPQGGain", kRequired, mPQCtrl,
        printTextAndResult("Set G Gain: ", &PQ::setPQGGain));
    add("z", "getPQBGain", kNone, mPQCtrl, printResult("Got B Gain: ", &PQ::getPQBGain));
    add("b:", "setPQBGain", kRequired, mPQCtrl,
        printTextAndResult("Set B Gain: ", &PQ::setPQBGain));
    add("b", "getColorTemp", kNone, mPQCtrl, printResult("Got Color Temp: ", &PQ::getColorTemp));
    add("c:", "setColorTemp", kRequired, mPQCtrl,
        printTextAndResult("Set Color Temp: ", &PQ::setColorTemp));
    add("j", "getSaturation", kNone, mPQCtrl,
        printResult("Got Saturation: ", &PQ::getSaturation));
    add("s:", "setSaturation", kRequired, mPQCtrl,
        printTextAndResult("Set Saturation: ", &PQ::setSaturation));
    add("x", "getHue", kNone, mPQCtrl, printResult("Got Hue: ", &PQ::getHue));
    add("b:", "setHue", kRequired, mPQCtrl, printTextAndResult("Set Hue: ", &PQ::setHue));
    add("u", "getContrast", kNone, mPQCtrl, printResult("Got Contrast: ", &PQ::getContrast));
    add("c:", "setContrast", kRequired, mPQCtrl,
        printTextAndResult("Set Contrast: ", &PQ::setContrast));
    add("k", "getSharpness", kNone, mPQCtrl, printResult("Got Sharpness: ", &PQ::getSharpness));
    add("s:", "setSharpness", kRequired, mPQCtrl,
        printTextAndResult("Set Sharpness: ", &PQ::setSharpness));
    add("y", "getPictureMode", kNone, mPQCtrl,
        printResult("Got PictureMode: ", &PQ::getPictureMode));
    add("p:", "setPictureMode", kRequired, mPQCtrl,
        printTextAndResult("Set PictureMode: ", &PQ::setPictureMode));
    add("z", "getGammaMode", kNone, mPQCtrl, printResult("Got GammaMode: ", &PQ::getGammaMode));
    add("g:", "setGammaMode", kRequired, mPQCtrl,
        printTextAndResult("Set GammaMode: ", &PQ::setGammaMode));
    add("k", "getBrightness", kNone, mPQCtrl,
        printResult("Got Brightness: ", &PQ::getBrightness));
    add("l:", "setBrightness", kRequired, mPQCtrl,
        printTextAndResult("Set Brightness: ", &PQ::setBrightness));

    add("g", "getPQRGainWithoutSave", kNone, mPQCtrl,
        printResult("GET_RGainWithoutSave: ", &PQ::getPQRGainWithoutSave));
    add("f:", "setPQRGainWithoutSave", kRequired, mPQCtrl,
        printTextAndResult("SET_RGainWithoutSave: ", &PQ::setPQRGainWithoutSave));
    add("w", "getPQGGainWithoutSave", kNone, mPQCtrl,
        printResult("GET_GGainWithoutSave: ", &PQ::getPQGGainWithoutSave));
    add("o:", "setPQGGainWithoutSave", kRequired, mPQCtrl,
        printTextAndResult("SET_GGainWithoutSave: ", &PQ::setPQGGainWithoutSave));
    add("k", "getPQBGainWithoutSave", kNone, mPQCtrl,
        printResult("GET_BGainWithoutSave: ", &PQ::getPQBGainWithoutSave));
    add("t:", "setPQBGainWithoutSave", kRequired, mPQCtrl,
        printTextAndResult("SET_BGainWithoutSave: ", &PQ::setPQBGainWithoutSave));

    // From here on the lines are the operation's name, " = " and a value.
    add("m", "getDBCEnable", kRequired, mPQCtrl, needsArgument(printResult("getDBCEnable = ",
                                                                           &PQ::getDBCEnable)));
    add("n", "setDBCEnable", kRequired, mPQCtrl,
        printResultForAtoi("setDBCEnable = ", &PQ::setDBCEnable));
    add("q", "getDCREnable", kRequired, mPQCtrl, needsArgument(printResult("getDCREnable = ",
                                                                           &PQ::getDCREnable)));
    add("r", "setDCREnable", kRequired, mPQCtrl,
        printResultForAtoi("setDCREnable = ", &PQ::setDCREnable));
    add("f", "setPresetColorTempMode", kRequired, mPQCtrl, [](PQ& pq, const Input& in) {
        if (in.missing()) return USAGE;
        std::vector<std::string> f = in.fields(5);
        int status = pq.setPresetColorTempMode(atoi(f[0].c_str()), atoi(f[1].c_str()),
                                               atoi(f[2].c_str()), atoi(f[3].c_str()),
                                               atoi(f[4].c_str()));
        std::cout << "setPresetColorTempMode = ";
        for (const std::string& field : f) std::cout << field << " ";
        std::cout << status << '\n';
        return OK;
    });
    add("f", "getPresetColorTempMode", kRequired, mPQCtrl, [](PQ& pq, const Input& in) {
        std::vector<std::string> f = in.fields(2);
        PresetColorTempRgb rgb = pq.getPresetColorTempMode(atoi(f[0].c_str()), atoi(f[1].c_str()));
        std::cout << "path = " << f[0] << " index = " << f[1] << '\n'
                  << "mPQCtrl = " << '\n'
                  << "r:" << rgb.r << " g: " << rgb.g << " b: " << rgb.b << '\n';
        return OK;
    });
    add("f", "resetWhiteBalance", kRequired, mPQCtrl,
        printResult("resetWhiteBalance = ", &PQ::resetWhiteBalance));
    add("e", "getEyePqmodeindex", kNone, mPQCtrl,
        printResult("Got eye index: ", &PQ::getEyePqmodeindex));
    add("m", "getAspectMode", kNone, mPQCtrl, printResult("getAspectMode = ", &PQ::getAspectMode));
    add("m", "setAspectMode", kRequired, mPQCtrl,
        printResultForAtoi("setAspectMode = ", &PQ::setAspectMode));
    return OK;
}

std::unique_ptr<ListCommand> newPQCtrlCommand(DumpBrel& parent) {
    return std::make_unique<PQCtrlCommand>(parent);
}

}  // namespace dumpbrel
}  // namespace android
