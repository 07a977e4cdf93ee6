#include <memory>
#include <string>

#include "framework/ListCommand.h"
#include "framework/Rows.h"
#include "service/IRGBLedCtrl.h"

namespace android {
namespace dumpbrel {

class RGBLedCtrlCommand : public ListCommand {
public:
    explicit RGBLedCtrlCommand(DumpBrel& parent);
    std::string getName() const override { return mName; }
    std::string getSimpleDescription() const override { return "RGBLedCtrl Module"; }
    Status registerAllOptions() override;

private:
    std::string mName;
    sp<IRGBLedCtrl> mRGBLedCtrl;
};

RGBLedCtrlCommand::RGBLedCtrlCommand(DumpBrel& parent)
    : ListCommand(parent),
      mName("RGBLedCtrl"),
      mRGBLedCtrl(connect(&IBrelManager::getRGBLedCtrl, "getRGBLedCtrl() fail\n")) {}

Status RGBLedCtrlCommand::registerAllOptions() {
    addHelp();
    // The indication setters echo the argument as typed. Every short option that takes an
    // argument has its colon, so the text is always there.
    add("s:", "setPowerStandbyState", kRequired, mRGBLedCtrl,
        printText("setPowerStandbyState : ", &IRGBLedCtrl::setPowerStandbyState));
    add("i", "setIRInputState", kNone, mRGBLedCtrl,
        printWhenDone("setIRInputState", &IRGBLedCtrl::setIRInputState));
    add("l:", "setLedOtaState", kRequired, mRGBLedCtrl,
        printText("setLedOtaState : ", &IRGBLedCtrl::setLedOtaState));
    add("d:", "setDiagnosisState", kRequired, mRGBLedCtrl,
        printText("setDiagnosisState : ", &IRGBLedCtrl::setDiagnosisState));
    add("p:", "setPowerLedEnableState", kRequired, mRGBLedCtrl,
        printText("setPowerLedEnableState : ", &IRGBLedCtrl::setPowerLedEnableState));
    add("a:", "setLedOn", kRequired, mRGBLedCtrl,
        printText("setLedOn : ", &IRGBLedCtrl::setLedOn));
    add("b:", "setLedOff", kRequired, mRGBLedCtrl,
        printText("setLedOff : ", &IRGBLedCtrl::setLedOff));
    add("e:", "setVaLedState", kRequired, mRGBLedCtrl,
        printAtoiAndResult("setVaLedState: ", &IRGBLedCtrl::setVaLedState, ", ret = "));
    add("f", "getVaLedState", kNone, mRGBLedCtrl,
        printResult("getVaLedState: ", &IRGBLedCtrl::getVaLedState));
    return OK;
}

std::unique_ptr<ListCommand> newRGBLedCtrlCommand(DumpBrel& parent) {
    return std::make_unique<RGBLedCtrlCommand>(parent);
}

}  // namespace dumpbrel
}  // namespace android
