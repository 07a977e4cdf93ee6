#include <iostream>
#include <memory>
#include <string>

#include <utils/String8.h>

#include "framework/ListCommand.h"
#include "framework/Rows.h"
#include "service/IRs232Ctrl.h"

namespace android {
namespace dumpbrel {

class Rs232CtrlCommand : public ListCommand {
public:
    explicit Rs232CtrlCommand(DumpBrel& parent);
    std::string getName() const override { return mName; }
    std::string getSimpleDescription() const override { return "Rs232Ctrl Module"; }
    Status registerAllOptions() override;

private:
    std::string mName;
    sp<IRs232Ctrl> mRs232Ctrl;
};

Rs232CtrlCommand::Rs232CtrlCommand(DumpBrel& parent)
    : ListCommand(parent),
      mName("Rs232Ctrl"),
      mRs232Ctrl(connect(&IBrelManager::getRs232Ctrl, "getRs232Ctrl() fail\n")) {}

// getEmmcSize and getRamSize have no letter: only their long names reach them.
Status Rs232CtrlCommand::registerAllOptions() {
    addHelp();
    add("f:", "getSmartRs232FrontUsb", kRequired, mRs232Ctrl,
        [](IRs232Ctrl& rs232, const Input& in) {
            int selector = 0;
            if (!in.toInt(selector)) return USAGE;
            String8 state(rs232.getSmartRs232FrontUsb(selector));
            std::cout << "getSmartRs232FrontUsb: " << selector << " = " << state.c_str() << '\n';
            return OK;
        });
    add("s:", "getSmartRs232SideUsb", kRequired, mRs232Ctrl,
        [](IRs232Ctrl& rs232, const Input& in) {
            int selector = 0;
            if (!in.toInt(selector)) return USAGE;
            String8 state(rs232.getSmartRs232SideUsb(selector));
            std::cout << "getSmartRs232SideUsb: " << selector << " = " << state.c_str() << '\n';
            return OK;
        });
    add("m:", "getSmartRs232EthMac", kRequired, mRs232Ctrl,
        [](IRs232Ctrl& rs232, const Input& in) {
            int selector = 0;
            if (!in.toInt(selector)) return USAGE;
            String8 mac(rs232.getSmartRs232EthMac(selector));
            std::cout << "getSmartRs232EthMac: " << selector << " = " << mac.c_str() << '\n';
            return OK;
        });
    add("t", "getATRs232TestResult", kNone, mRs232Ctrl,
        printResult("getATRs232TestResult: ", &IRs232Ctrl::getATRs232TestResult));
    add("", "getEmmcSize", kNone, mRs232Ctrl,
        printResult("getEmmcSize: ", &IRs232Ctrl::getEmmcSize));
    add("", "getRamSize", kNone, mRs232Ctrl, printResult("getRamSize: ", &IRs232Ctrl::getRamSize));
    return OK;
}

std::unique_ptr<ListCommand> newRs232CtrlCommand(DumpBrel& parent) {
    return std::make_unique<Rs232CtrlCommand>(parent);
}

}  // namespace dumpbrel
}  // namespace android
