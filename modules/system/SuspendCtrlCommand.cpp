#include <cstdlib>
#include <iostream>
#include <memory>
#include <string>

#include "framework/ListCommand.h"
#include "service/ISuspendCtrl.h"

namespace android {
namespace dumpbrel {

class SuspendCtrlCommand : public ListCommand {
public:
    explicit SuspendCtrlCommand(DumpBrel& parent);
    std::string getName() const override { return mName; }
    std::string getSimpleDescription() const override { return "SuspendCtrl Module"; }
    Status registerAllOptions() override;

private:
    std::string mName;
    sp<ISuspendCtrl> mSuspendCtrl;
};

SuspendCtrlCommand::SuspendCtrlCommand(DumpBrel& parent)
    : ListCommand(parent),
      mName("SuspendCtrl"),
      mSuspendCtrl(connect(&IBrelManager::getSuspendCtrl, "SuspendCtrl() fail\n")) {}

Status SuspendCtrlCommand::registerAllOptions() {
    addHelp();
    add("1:", "setSuspendStatus", kRequired, mSuspendCtrl,
        [](ISuspendCtrl& suspend, const Input& in) {
            if (in.missing()) return USAGE;
            // The number as typed is echoed; the service gets only whether it is 0.
            int value = atoi(in.text);
            int result = suspend.setSuspendStatus(value != 0);
            std::cout << "setSuspendStatus= " << value << " ret= " << result << "\n";
            return OK;
        },
        "1 suspend \n0 resume\n");
    add("2", "getSuspendStatus", kNone, mSuspendCtrl,
        [](ISuspendCtrl& suspend, const Input&) {
            int suspended = suspend.getSuspendStatus();
            std::cout << "getSuspendStatus= " << suspended << "\n";
            return OK;
        },
        "true : suspend \nfalse : resume\n");
    return OK;
}

std::unique_ptr<ListCommand> newSuspendCtrlCommand(DumpBrel& parent) {
    return std::make_unique<SuspendCtrlCommand>(parent);
}

}  // namespace dumpbrel
}  // namespace android
