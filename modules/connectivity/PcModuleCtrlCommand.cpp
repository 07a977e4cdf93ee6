#include <iostream>
#include <memory>
#include <string>

#include "framework/ListCommand.h"
#include "framework/Rows.h"
#include "service/IPcModuleCtrl.h"

namespace android {
namespace dumpbrel {

class PcModuleCtrlCommand : public ListCommand {
public:
    explicit PcModuleCtrlCommand(DumpBrel& parent);
    std::string getName() const override { return mName; }
    std::string getSimpleDescription() const override { return "PcModuleCtrl Module"; }
    Status registerAllOptions() override;

private:
    std::string mName;
    sp<IPcModuleCtrl> mPcModuleCtrl;
};

PcModuleCtrlCommand::PcModuleCtrlCommand(DumpBrel& parent)
    : ListCommand(parent),
      mName("PcModuleCtrl"),
      mPcModuleCtrl(connect(&IBrelManager::getPcModuleCtrl, "getPcModuleCtrl() fail\n")) {}

Status PcModuleCtrlCommand::registerAllOptions() {
    addHelp();
    add("s", "getPcState", kNone, mPcModuleCtrl,
        printResult("pc_state: ", &IPcModuleCtrl::getPcState));
    add("o", "setPcSwitchOn", kNone, mPcModuleCtrl,
        printResult("ret: ", &IPcModuleCtrl::setPcSwitchOn));
    add("f", "setPcSwitchOff", kNone, mPcModuleCtrl,
        printResult("ret: ", &IPcModuleCtrl::setPcSwitchOff));
    add("r", "setPcRecovery", kNone, mPcModuleCtrl,
        printResult("ret: ", &IPcModuleCtrl::setPcRecovery));
    // Bare numbers, one to a line; an empty list prints nothing.
    add("l", "getSupportPcBootModeList", kNone, mPcModuleCtrl,
        [](IPcModuleCtrl& pc, const Input&) {
            for (_EnumPcBootMode mode : pc.getSupportPcBootModeList())
                std::cout << static_cast<int32_t>(mode) << '\n';
            return OK;
        });
    add("m:", "setPcBootMode", kRequired, mPcModuleCtrl,
        printAtoiAndResult("setPcBootMode: ", &IPcModuleCtrl::setPcBootMode, ", ret = "));
    add("g", "getPcBootMode", kNone, mPcModuleCtrl,
        printResult("getPcBootMode: ", &IPcModuleCtrl::getPcBootMode));
    return OK;
}

std::unique_ptr<ListCommand> newPcModuleCtrlCommand(DumpBrel& parent) {
    return std::make_unique<PcModuleCtrlCommand>(parent);
}

}  // namespace dumpbrel
}  // namespace android
