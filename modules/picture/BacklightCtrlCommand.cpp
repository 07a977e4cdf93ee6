#include <cstdlib>
#include <iostream>
#include <memory>
#include <string>

#include "framework/ListCommand.h"
#include "service/IBacklightCtrl.h"

namespace android {
namespace dumpbrel {

class BacklightCtrlCommand : public ListCommand {
public:
    explicit BacklightCtrlCommand(DumpBrel& parent);
    std::string getName() const override { return mName; }
    std::string getSimpleDescription() const override;
    Status registerAllOptions() override;

private:
    std::string mName;
    sp<IBacklightCtrl> mBacklightCtrl;
};

BacklightCtrlCommand::BacklightCtrlCommand(DumpBrel& parent)
    : ListCommand(parent),
      mName("BacklightCtrl"),
      mBacklightCtrl(connect(&IBrelManager::getBacklightCtrl, "getBacklightCtrl() fail\n")) {}

std::string BacklightCtrlCommand::getSimpleDescription() const {
    return "BacklightCtrl Module";
}

Status BacklightCtrlCommand::registerAllOptions() {
    addHelp();
    add("g", "getScreenBrightness", kNone, mBacklightCtrl,
        [](IBacklightCtrl& backlight, const Input&) {
            std::cout << "ScreenBrightness = " << backlight.getScreenBrightness() << '\n';
            return OK;
        });
    add("s:", "setScreenBrightness", kRequired, mBacklightCtrl,
        [](IBacklightCtrl& backlight, const Input& in) {
            if (in.missing()) return USAGE;
            int value = atoi(in.text);
            std::cout << "setScreenBrightness = " << backlight.setScreenBrightness(value) << '\n';
            return OK;
        });
    add("m", "getScreenMaxBrightness", kNone, mBacklightCtrl,
        [](IBacklightCtrl& backlight, const Input&) {
            std::cout << "CurMaxBrightness = " << backlight.getScreenMaxBrightness() << '\n';
            return OK;
        });
    add("b:", "setScreenMaxBrightness", kRequired, mBacklightCtrl,
        [](IBacklightCtrl& backlight, const Input& in) {
            if (in.missing()) return USAGE;
            int value = atoi(in.text);
            std::cout << "SetMaxBrightness = " << backlight.setScreenMaxBrightness(value) << '\n';
            return OK;
        });
    return OK;
}

std::unique_ptr<ListCommand> newBacklightCtrlCommand(DumpBrel& parent) {
    return std::make_unique<BacklightCtrlCommand>(parent);
}

}  // namespace dumpbrel
}  // namespace android
