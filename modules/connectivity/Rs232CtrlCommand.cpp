#include "modules/Modules.h"

namespace android {
namespace dumpbrel {

Rs232CtrlCommand::Rs232CtrlCommand(DumpBrel& parent)
    : ListCommand(parent),
      mName("Rs232Ctrl"),
      mRs232Ctrl(connect(&IBrelManager::getRs232Ctrl, "getRs232Ctrl() fail\n")) {}

std::string Rs232CtrlCommand::getSimpleDescription() const {
    return "Rs232Ctrl Module";
}

Status Rs232CtrlCommand::registerAllOptions() {
    addHelp();
    return OK;
}

}  // namespace dumpbrel
}  // namespace android
