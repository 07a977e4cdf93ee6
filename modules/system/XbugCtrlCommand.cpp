#include "modules/Modules.h"

namespace android {
namespace dumpbrel {

XbugCtrlCommand::XbugCtrlCommand(DumpBrel& parent)
    : ListCommand(parent),
      mName("XbugCtrl"),
      mXbugCtrl(connect(&IBrelManager::getXbugCtrl, "getXbugCtrl() fail\n")) {}

std::string XbugCtrlCommand::getSimpleDescription() const {
    return "XbugCtrl Module";
}

Status XbugCtrlCommand::registerAllOptions() {
    addHelp();
    return OK;
}

}  // namespace dumpbrel
}  // namespace android
