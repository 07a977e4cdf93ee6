#include "modules/Modules.h"

namespace android {
namespace dumpbrel {

AtCfgControlCommand::AtCfgControlCommand(DumpBrel& parent)
    : ListCommand(parent),
      mName("AtCfgControl"),
      mAtCfgControl(connect(&IBrelManager::getAtCfgControl, "getAtCfgControl() fail\n")) {}

std::string AtCfgControlCommand::getSimpleDescription() const {
    return "AtCfgControl Module";
}

Status AtCfgControlCommand::registerAllOptions() {
    addHelp();
    return OK;
}

}  // namespace dumpbrel
}  // namespace android
