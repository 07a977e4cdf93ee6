#include <cstdlib>
#include <iostream>

#include "modules/Modules.h"

namespace android {
namespace dumpbrel {

AnionCtrlCommand::AnionCtrlCommand(DumpBrel& parent)
    : ListCommand(parent),
      mName("AnionCtrl"),
      mAnionCtrl(connect(&IBrelManager::getAnionCtrl, "getAnionCtrl() fail\n")) {}

std::string AnionCtrlCommand::getSimpleDescription() const {
    return "AnionCtrl Module";
}

Status AnionCtrlCommand::registerAllOptions() {
    addHelp();
    add("s:", "setAnionStatus", kRequired, mAnionCtrl, [](IAnionCtrl& anion, const Input& in) {
        int status = atoi(in.text);
        std::cout << "setAnionStatus: " << in.text << ", ret:" << anion.setAnionStatus(status)
                  << '\n';
        return OK;
    });
    return OK;
}

}  // namespace dumpbrel
}  // namespace android
