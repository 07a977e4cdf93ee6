#include <iostream>
#include <memory>
#include <string>
#include <vector>

#include "framework/ListCommand.h"
#include "framework/Rows.h"
#include "service/ISmartPenModeCtrl.h"

namespace android {
namespace dumpbrel {

class SmartPenModeCtrlCommand : public ListCommand {
public:
    explicit SmartPenModeCtrlCommand(DumpBrel& parent);
    std::string getName() const override { return mName; }
    std::string getSimpleDescription() const override { return "SmartPenModeCtrl Module"; }
    Status registerAllOptions() override;

private:
    std::string mName;
    sp<ISmartPenModeCtrl> mSmartPenModeCtrl;
};

SmartPenModeCtrlCommand::SmartPenModeCtrlCommand(DumpBrel& parent)
    : ListCommand(parent),
      mName("SmartPenModeCtrl"),
      mSmartPenModeCtrl(connect(&IBrelManager::getSmartPenModeCtrl, "getSmartPenModeCtrl() fail\n")) {}

Status SmartPenModeCtrlCommand::registerAllOptions() {
    addHelp();
    add("l", "getSupportSmartPenModeList", kNone, mSmartPenModeCtrl,
        [](ISmartPenModeCtrl& pen, const Input&) {
            std::vector<_EnumSmartPenMode> modes = pen.getSupportSmartPenModeList();
            for (_EnumSmartPenMode mode : modes) std::cout << static_cast<int>(mode) << '\n';
            return OK;
        });
    add("m:", "setSmartPenMode", kRequired, mSmartPenModeCtrl,
        printAtoiAndResult("setSmartPenMode: ", &ISmartPenModeCtrl::setSmartPenMode, ", ret = "));
    add("g", "getSmartPenMode", kNone, mSmartPenModeCtrl,
        printResult("getSmartPenMode: ", &ISmartPenModeCtrl::getSmartPenMode));
    return OK;
}

std::unique_ptr<ListCommand> newSmartPenModeCtrlCommand(DumpBrel& parent) {
    return std::make_unique<SmartPenModeCtrlCommand>(parent);
}

}  // namespace dumpbrel
}  // namespace android
