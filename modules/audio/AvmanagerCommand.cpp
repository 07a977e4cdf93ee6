#include "modules/Modules.h"

namespace android {
namespace dumpbrel {

AvmanagerCommand::AvmanagerCommand(DumpBrel& parent)
    : ListCommand(parent),
      mName("AvManager"),
      mAvManagerCtrl(connect(&IBrelManager::getAvManagerCtrl, "getAvManagerCtrl() fail\n")) {}

std::string AvmanagerCommand::getSimpleDescription() const {
    return "Avmanager Module";
}

Status AvmanagerCommand::registerAllOptions() {
    addHelp();
    return OK;
}

}  // namespace dumpbrel
}  // namespace android
