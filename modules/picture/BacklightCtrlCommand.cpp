#include <memory>
#include <string>

#include "framework/ListCommand.h"
#include "framework/Rows.h"
#include "service/IBacklightCtrl.h"

namespace android {
namespace dumpbrel {

class BacklightCtrlCommand : public ListCommand {
public:
    explicit BacklightCtrlCommand(DumpBrel& parent);
    std::string getName() const override { return mName; }
    std::string getSimpleDescription() const override { return "BacklightCtrl Module"; }
    Status registerAllOptions() override;

private:
    std::string mName;
    sp<IBacklightCtrl> mBacklightCtrl;
};

BacklightCtrlCommand::BacklightCtrlCommand(DumpBrel& parent)
    : ListCommand(parent),
      mName("BacklightCtrl"),
      mBacklightCtrl(connect(&IBrelManager::getBacklightCtrl, "getBacklightCtrl() fail\n")) {}

Status BacklightCtrlCommand::registerAllOptions() {
    addHelp();
    add("g", "getScreenBrightness", kNone, mBacklightCtrl,
        printResult("ScreenBrightness = ", &IBacklightCtrl::getScreenBrightness));
    add("s:", "setScreenBrightness", kRequired, mBacklightCtrl,
        printResultForAtoi("setScreenBrightness = ", &IBacklightCtrl::setScreenBrightness));
    add("m", "getScreenMaxBrightness", kNone, mBacklightCtrl,
        printResult("CurMaxBrightness = ", &IBacklightCtrl::getScreenMaxBrightness));
    add("b:", "setScreenMaxBrightness", kRequired, mBacklightCtrl,
        printResultForAtoi("SetMaxBrightness = ", &IBacklightCtrl::setScreenMaxBrightness));
    return OK;
}

std::unique_ptr<ListCommand> newBacklightCtrlCommand(DumpBrel& parent) {
    return std::make_unique<BacklightCtrlCommand>(parent);
}

}  // namespace dumpbrel
}  // namespace android
