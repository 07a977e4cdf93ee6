#include "modules/Modules.h"

namespace android {
namespace dumpbrel {

KeyboardCtrlCommand::KeyboardCtrlCommand(DumpBrel& parent)
    : ListCommand(parent),
      mName("KeyboardCtrl"),
      mKeyboardCtrl(connect(&IBrelManager::getKeyboardCtrl, "getKeyboardCtrl() fail\n")) {}

std::string KeyboardCtrlCommand::getSimpleDescription() const {
    return "KeyboardCtrl Module";
}

Status KeyboardCtrlCommand::registerAllOptions() {
    addHelp();
    return OK;
}

}  // namespace dumpbrel
}  // namespace android
