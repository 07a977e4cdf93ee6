#include <cstdlib>
#include <iostream>
#include <vector>

#include "modules/Modules.h"

namespace android {
namespace dumpbrel {

SmartPenModeCtrlCommand::SmartPenModeCtrlCommand(DumpBrel& parent)
    : ListCommand(parent),
      mName("SmartPenModeCtrl"),
      mSmartPenModeCtrl(connect(&IBrelManager::getSmartPenModeCtrl, "getSmartPenModeCtrl() fail\n")) {}

std::string SmartPenModeCtrlCommand::getSimpleDescription() const {
    return "SmartPenModeCtrl Module";
}

Status SmartPenModeCtrlCommand::registerAllOptions() {
    addHelp();
    add("l", "getSupportSmartPenModeList", kNone, mSmartPenModeCtrl,
        [](ISmartPenModeCtrl& pen, const Input&) {
            std::vector<_EnumSmartPenMode> modes = pen.getSupportSmartPenModeList();
            for (_EnumSmartPenMode mode : modes) std::cout << static_cast<int>(mode) << '\n';
            return OK;
        });
    add("m:", "setSmartPenMode", kRequired, mSmartPenModeCtrl,
        [](ISmartPenModeCtrl& pen, const Input& in) {
            if (in.missing()) return USAGE;
            int mode = atoi(in.text);
            int ret = pen.setSmartPenMode(mode);
            std::cout << "setSmartPenMode: " << mode << ", ret = " << ret << '\n';
            return OK;
        });
    add("g", "getSmartPenMode", kNone, mSmartPenModeCtrl, [](ISmartPenModeCtrl& pen, const Input&) {
        std::cout << "getSmartPenMode: " << pen.getSmartPenMode() << '\n';
        return OK;
    });
    return OK;
}

}  // namespace dumpbrel
}  // namespace android
