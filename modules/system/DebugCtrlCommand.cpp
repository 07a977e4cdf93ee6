#include <iostream>

#include "modules/Modules.h"

namespace android {
namespace dumpbrel {

DebugCtrlCommand::DebugCtrlCommand(DumpBrel& parent)
    : ListCommand(parent),
      mName("DebugCtrl"),
      mDebugCtrl(connect(&IBrelManager::getDebugCtrl, "getDebugCtrl() fail\n")) {}

std::string DebugCtrlCommand::getSimpleDescription() const {
    return "DebugCtrl Module";
}

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

}  // namespace dumpbrel
}  // namespace android
