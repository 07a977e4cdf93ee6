#include "modules/Modules.h"

namespace android {
namespace dumpbrel {

FwUpgradeCommand::FwUpgradeCommand(DumpBrel& parent)
    : ListCommand(parent),
      mName("FwUpgrade"),
      mFwUpgrade(connect(&IBrelManager::getFwUpgrade, "getFwUpgrade() fail\n")) {}

std::string FwUpgradeCommand::getSimpleDescription() const {
    return "FwUpgrade Module";
}

Status FwUpgradeCommand::registerAllOptions() {
    addHelp();
    return OK;
}

}  // namespace dumpbrel
}  // namespace android
