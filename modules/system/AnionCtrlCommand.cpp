#include <memory>
#include <string>

#include "framework/ListCommand.h"
#include "framework/Rows.h"
#include "service/IAnionCtrl.h"

namespace android {
namespace dumpbrel {

class AnionCtrlCommand : public ListCommand {
public:
    explicit AnionCtrlCommand(DumpBrel& parent);
    std::string getName() const override { return mName; }
    std::string getSimpleDescription() const override { return "AnionCtrl Module"; }
    Status registerAllOptions() override;

private:
    std::string mName;
    sp<IAnionCtrl> mAnionCtrl;
};

AnionCtrlCommand::AnionCtrlCommand(DumpBrel& parent)
    : ListCommand(parent),
      mName("AnionCtrl"),
      mAnionCtrl(connect(&IBrelManager::getAnionCtrl, "getAnionCtrl() fail\n")) {}

Status AnionCtrlCommand::registerAllOptions() {
    addHelp();
    add("s:", "setAnionStatus", kRequired, mAnionCtrl,
        printTextAndResult("setAnionStatus: ", &IAnionCtrl::setAnionStatus, ", ret:"));
    return OK;
}

std::unique_ptr<ListCommand> newAnionCtrlCommand(DumpBrel& parent) {
    return std::make_unique<AnionCtrlCommand>(parent);
}

}  // namespace dumpbrel
}  // namespace android
