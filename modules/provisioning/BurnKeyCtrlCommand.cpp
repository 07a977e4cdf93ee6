#include "modules/Modules.h"

namespace android {
namespace dumpbrel {

BurnKeyCtrlCommand::BurnKeyCtrlCommand(DumpBrel& parent)
    : ListCommand(parent),
      mName("BurnKeyCtrl"),
      mBurnKeyCtrl(connect(&IBrelManager::getBurnKeyCtrl, "getBurnKeyCtrl() fail\n")) {}

std::string BurnKeyCtrlCommand::getSimpleDescription() const {
    return "BurnKeyCtrl Module";
}

Status BurnKeyCtrlCommand::registerAllOptions() {
    addHelp();
    return OK;
}

}  // namespace dumpbrel
}  // namespace android
