#include "modules/Modules.h"

namespace android {
namespace dumpbrel {

PcModuleCtrlCommand::PcModuleCtrlCommand(DumpBrel& parent)
    : ListCommand(parent),
      mName("PcModuleCtrl"),
      mPcModuleCtrl(connect(&IBrelManager::getPcModuleCtrl, "getPcModuleCtrl() fail\n")) {}

std::string PcModuleCtrlCommand::getSimpleDescription() const {
    return "PcModuleCtrl Module";
}

Status PcModuleCtrlCommand::registerAllOptions() {
    addHelp();
    return OK;
}

}  // namespace dumpbrel
}  // namespace android
