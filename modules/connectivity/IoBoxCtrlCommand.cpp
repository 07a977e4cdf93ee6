#include <memory>
#include <string>

#include "framework/ListCommand.h"
#include "service/IIoBoxCtrl.h"

namespace android {
namespace dumpbrel {

class IoBoxCtrlCommand : public ListCommand {
public:
    explicit IoBoxCtrlCommand(DumpBrel& parent);
    std::string getName() const override { return mName; }
    std::string getSimpleDescription() const override { return "IoBoxCtrl Module"; }
    Status registerAllOptions() override;

private:
    std::string mName;
    sp<IIoBoxCtrl> mIoBoxCtrl;
};

IoBoxCtrlCommand::IoBoxCtrlCommand(DumpBrel& parent)
    : ListCommand(parent),
      mName("IoBoxCtrl"),
      mIoBoxCtrl(connect(&IBrelManager::getIoBoxCtrl, "getIoBoxCtrl() fail\n")) {}

Status IoBoxCtrlCommand::registerAllOptions() {
    addHelp();
    return OK;
}

std::unique_ptr<ListCommand> newIoBoxCtrlCommand(DumpBrel& parent) {
    return std::make_unique<IoBoxCtrlCommand>(parent);
}

}  // namespace dumpbrel
}  // namespace android
