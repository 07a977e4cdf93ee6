#include <cstdlib>
#include <iostream>

#include "modules/Modules.h"

namespace android {
namespace dumpbrel {

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

}  // namespace dumpbrel
}  // namespace android
