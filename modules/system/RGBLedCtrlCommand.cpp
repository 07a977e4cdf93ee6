#include <cstdlib>
#include <iostream>
#include <memory>
#include <string>

#include "framework/ListCommand.h"
#include "service/IRGBLedCtrl.h"

namespace android {
namespace dumpbrel {

class RGBLedCtrlCommand : public ListCommand {
public:
    explicit RGBLedCtrlCommand(DumpBrel& parent);
    std::string getName() const override { return mName; }
    std::string getSimpleDescription() const override;
    Status registerAllOptions() override;

private:
    std::string mName;
    sp<IRGBLedCtrl> mRGBLedCtrl;
};

RGBLedCtrlCommand::RGBLedCtrlCommand(DumpBrel& parent)
    : ListCommand(parent),
      mName("RGBLedCtrl"),
      mRGBLedCtrl(connect(&IBrelManager::getRGBLedCtrl, "getRGBLedCtrl() fail\n")) {}

std::string RGBLedCtrlCommand::getSimpleDescription() const {
    return "RGBLedCtrl Module";
}

Status RGBLedCtrlCommand::registerAllOptions() {
    addHelp();
    // The indication setters echo the argument as typed. Every short option that takes an
    // argument has its colon, so the text is always there.
    add("s:", "setPowerStandbyState", kRequired, mRGBLedCtrl,
        [](IRGBLedCtrl& led, const Input& in) {
            led.setPowerStandbyState(atoi(in.text));
            std::cout << "setPowerStandbyState : " << in.text << '\n';
            return OK;
        });
    add("i", "setIRInputState", kNone, mRGBLedCtrl, [](IRGBLedCtrl& led, const Input&) {
        led.setIRInputState();
        std::cout << "setIRInputState" << '\n';
        return OK;
    });
    add("l:", "setLedOtaState", kRequired, mRGBLedCtrl, [](IRGBLedCtrl& led, const Input& in) {
        led.setLedOtaState(atoi(in.text));
        std::cout << "setLedOtaState : " << in.text << '\n';
        return OK;
    });
    add("d:", "setDiagnosisState", kRequired, mRGBLedCtrl, [](IRGBLedCtrl& led, const Input& in) {
        led.setDiagnosisState(atoi(in.text));
        std::cout << "setDiagnosisState : " << in.text << '\n';
        return OK;
    });
    add("p:", "setPowerLedEnableState", kRequired, mRGBLedCtrl,
        [](IRGBLedCtrl& led, const Input& in) {
            led.setPowerLedEnableState(atoi(in.text));
            std::cout << "setPowerLedEnableState : " << in.text << '\n';
            return OK;
        });
    add("a:", "setLedOn", kRequired, mRGBLedCtrl, [](IRGBLedCtrl& led, const Input& in) {
        led.setLedOn(atoi(in.text));
        std::cout << "setLedOn : " << in.text << '\n';
        return OK;
    });
    add("b:", "setLedOff", kRequired, mRGBLedCtrl, [](IRGBLedCtrl& led, const Input& in) {
        led.setLedOff(atoi(in.text));
        std::cout << "setLedOff : " << in.text << '\n';
        return OK;
    });
    add("e:", "setVaLedState", kRequired, mRGBLedCtrl, [](IRGBLedCtrl& led, const Input& in) {
        if (in.missing()) return USAGE;
        int state = atoi(in.text);
        bool ret = led.setVaLedState(state);
        std::cout << "setVaLedState: " << state << ", ret = " << ret << '\n';
        return OK;
    });
    add("f", "getVaLedState", kNone, mRGBLedCtrl, [](IRGBLedCtrl& led, const Input&) {
        int state = led.getVaLedState();
        std::cout << "getVaLedState: " << state << '\n';
        return OK;
    });
    return OK;
}

std::unique_ptr<ListCommand> newRGBLedCtrlCommand(DumpBrel& parent) {
    return std::make_unique<RGBLedCtrlCommand>(parent);
}

}  // namespace dumpbrel
}  // namespace android
