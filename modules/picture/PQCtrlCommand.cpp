#include <cstdlib>
#include <iostream>
#include <memory>
#include <string>
#include <vector>

#include "framework/Getters.h"
#include "framework/ListCommand.h"
#include "service/IPQCtrl.h"

namespace android {
namespace dumpbrel {

class PQCtrlCommand : public ListCommand {
public:
    explicit PQCtrlCommand(DumpBrel& parent);
    std::string getName() const override { return mName; }
    std::string getSimpleDescription() const override;
    Status registerAllOptions() override;

private:
    std::string mName;
    sp<IPQCtrl> mPQCtrl;
};

namespace {

// A picture value set by an atoi number: `label`, the argument as typed, ", ret = " and the
// status. The text is echoed, not the number.
auto setValue(const char* label, int (IPQCtrl::*op)(int)) {
    return [label, op](IPQCtrl& pq, const Input& in) -> Status {
        if (in.missing()) return USAGE;
        int status = (pq.*op)(atoi(in.text));
        std::cout << label << in.text << ", ret = " << status << '\n';
        return OK;
    };
}

// The DBC or DCR switch read: the option needs an argument but never reads it; `label` and the
// switch as 0 or 1.
auto getSwitch(const char* label, bool (IPQCtrl::*op)()) {
    return [label, op](IPQCtrl& pq, const Input& in) -> Status {
        if (in.missing()) return USAGE;
        std::cout << label << static_cast<int>((pq.*op)()) << '\n';
        return OK;
    };
}

// The DBC or DCR switch set: on for an atoi number other than 0; `label` and the status.
auto setSwitch(const char* label, int (IPQCtrl::*op)(bool)) {
    return [label, op](IPQCtrl& pq, const Input& in) -> Status {
        if (in.missing()) return USAGE;
        std::cout << label << (pq.*op)(atoi(in.text) != 0) << '\n';
        return OK;
    };
}

}  // namespace

PQCtrlCommand::PQCtrlCommand(DumpBrel& parent)
    : ListCommand(parent),
      mName("PQCtrl"),
      mPQCtrl(connect(&IBrelManager::getPQCtrl, "getPQCtrol() fail\n")) {}

std::string PQCtrlCommand::getSimpleDescription() const {
    return "PQCtrl Module";
}

Status PQCtrlCommand::registerAllOptions() {
    using PQ = IPQCtrl;
    addHelp();
    add("x", "getPQRGain", kNone, mPQCtrl, printResult("Got R Gain: ", &PQ::getPQRGain));
    add("r:", "setPQRGain", kRequired, mPQCtrl, setValue("Set R Gain: ", &PQ::setPQRGain));
    add("y", "getPQGGain", kNone, mPQCtrl, printResult("Got G Gain: ", &PQ::getPQGGain));
    add("g:", "setPQGGain", kRequired, mPQCtrl, setValue("Set G Gain: ", &PQ::setPQGGain));
    add("z", "getPQBGain", kNone, mPQCtrl, printResult("Got B Gain: ", &PQ::getPQBGain));
    add("b:", "setPQBGain", kRequired, mPQCtrl, setValue("Set B Gain: ", &PQ::setPQBGain));
    add("b", "getColorTemp", kNone, mPQCtrl, printResult("Got Color Temp: ", &PQ::getColorTemp));
    add("c:", "setColorTemp", kRequired, mPQCtrl,
        setValue("Set Color Temp: ", &PQ::setColorTemp));
    add("j", "getSaturation", kNone, mPQCtrl,
        printResult("Got Saturation: ", &PQ::getSaturation));
    add("s:", "setSaturation", kRequired, mPQCtrl,
        setValue("Set Saturation: ", &PQ::setSaturation));
    add("x", "getHue", kNone, mPQCtrl, printResult("Got Hue: ", &PQ::getHue));
    add("b:", "setHue", kRequired, mPQCtrl, setValue("Set Hue: ", &PQ::setHue));
    add("u", "getContrast", kNone, mPQCtrl, printResult("Got Contrast: ", &PQ::getContrast));
    add("c:", "setContrast", kRequired, mPQCtrl, setValue("Set Contrast: ", &PQ::setContrast));
    add("k", "getSharpness", kNone, mPQCtrl, printResult("Got Sharpness: ", &PQ::getSharpness));
    add("s:", "setSharpness", kRequired, mPQCtrl,
        setValue("Set Sharpness: ", &PQ::setSharpness));
    add("y", "getPictureMode", kNone, mPQCtrl,
        printResult("Got PictureMode: ", &PQ::getPictureMode));
    add("p:", "setPictureMode", kRequired, mPQCtrl,
        setValue("Set PictureMode: ", &PQ::setPictureMode));
    add("z", "getGammaMode", kNone, mPQCtrl, printResult("Got GammaMode: ", &PQ::getGammaMode));
    add("g:", "setGammaMode", kRequired, mPQCtrl,
        setValue("Set GammaMode: ", &PQ::setGammaMode));
    add("k", "getBrightness", kNone, mPQCtrl,
        printResult("Got Brightness: ", &PQ::getBrightness));
    add("l:", "setBrightness", kRequired, mPQCtrl,
        setValue("Set Brightness: ", &PQ::setBrightness));

    add("g", "getPQRGainWithoutSave", kNone, mPQCtrl,
        printResult("GET_RGainWithoutSave: ", &PQ::getPQRGainWithoutSave));
    add("f:", "setPQRGainWithoutSave", kRequired, mPQCtrl,
        setValue("SET_RGainWithoutSave: ", &PQ::setPQRGainWithoutSave));
    add("w", "getPQGGainWithoutSave", kNone, mPQCtrl,
        printResult("GET_GGainWithoutSave: ", &PQ::getPQGGainWithoutSave));
    add("o:", "setPQGGainWithoutSave", kRequired, mPQCtrl,
        setValue("SET_GGainWithoutSave: ", &PQ::setPQGGainWithoutSave));
    add("k", "getPQBGainWithoutSave", kNone, mPQCtrl,
        printResult("GET_BGainWithoutSave: ", &PQ::getPQBGainWithoutSave));
    add("t:", "setPQBGainWithoutSave", kRequired, mPQCtrl,
        setValue("SET_BGainWithoutSave: ", &PQ::setPQBGainWithoutSave));

    // From here on the lines are the operation's name, " = " and a value.
    add("m", "getDBCEnable", kRequired, mPQCtrl, getSwitch("getDBCEnable = ", &PQ::getDBCEnable));
    add("n", "setDBCEnable", kRequired, mPQCtrl, setSwitch("setDBCEnable = ", &PQ::setDBCEnable));
    add("q", "getDCREnable", kRequired, mPQCtrl, getSwitch("getDCREnable = ", &PQ::getDCREnable));
    add("r", "setDCREnable", kRequired, mPQCtrl, setSwitch("setDCREnable = ", &PQ::setDCREnable));
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
    add("m", "setAspectMode", kRequired, mPQCtrl, [](PQ& pq, const Input& in) {
        if (in.missing()) return USAGE;
        int mode = atoi(in.text);
        std::cout << "setAspectMode = " << pq.setAspectMode(mode) << '\n';
        return OK;
    });
    return OK;
}

std::unique_ptr<ListCommand> newPQCtrlCommand(DumpBrel& parent) {
    return std::make_unique<PQCtrlCommand>(parent);
}

}  // namespace dumpbrel
}  // namespace android
