#include <iostream>
#include <memory>
#include <string>

#include "framework/ListCommand.h"
#include "service/IDebugCtrl.h"

namespace android {
namespace dumpbrel {

class DebugCtrlCommand : public ListCommand {
public:
    explicit DebugCtrlCommand(DumpBrel& parent);
    std::string getName() const override { return mName; }
    std::string getSimpleDescription() const override { return "DebugCtrl Module"; }
    Status registerAllOptions() override;

private:
    std::string mName;
    sp<IDebugCtrl> mDebugCtrl;
};

DebugCtrlCommand::DebugCtrlCommand(DumpBrel& parent)
    : ListCommand(parent),
      mName("DebugCtrl"),
      mDebugCtrl(connect(&IBrelManager::getDebugCtrl, "getDebugCtrl() fail\n")) {}

Status DebugCtrlCommand::registerAllOptions() {
    addHelp();
    add("g", "getSuperRootState", kNone, mDebugCtrl, [](IDebugCtrl& debug, const Input&) {
        std::cout << (debug.getSuperRootState() ? "Super Root State: true"
                                                : "Super Root State: false")
                  << "\n";
        return OK;
    });
    // The letter takes no argument, so only the long form brings the text.
    add("s", "setSuperRootState", kRequired, mDebugCtrl, [](IDebugCtrl& debug, const Input& in) {
        if (in.missing()) return USAGE;
        std::cout << (debug.setSuperRootState(in.text) ? "Super Root State: true"
                                                       : "Super Root State: false")
                  << "\n";
        return OK;
    });
    return OK;
}

std::unique_ptr<ListCommand> newDebugCtrlCommand(DumpBrel& parent) {
    return std::make_unique<DebugCtrlCommand>(parent);
}

}  // namespace dumpbrel
}  // namespace android
