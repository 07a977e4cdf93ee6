#include "modules/Modules.h"

namespace android {
namespace dumpbrel {

BurnMacCtrlCommand::BurnMacCtrlCommand(DumpBrel& parent)
    : ListCommand(parent),
      mName("BurnMacCtrl"),
      mBurnMacCtrl(connect(&IBrelManager::getBurnMacCtrl, "getBurnMacCtrl() fail\n")) {}

std::string BurnMacCtrlCommand::getSimpleDescription() const {
    return "BurnMacCtrl Module";
}

Status BurnMacCtrlCommand::registerAllOptions() {
    addHelp();
    return OK;
}

}  // namespace dumpbrel
}  // namespace android
