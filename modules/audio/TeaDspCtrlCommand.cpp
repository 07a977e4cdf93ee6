#include "modules/Modules.h"

namespace android {
namespace dumpbrel {

TeaDspCtrlCommand::TeaDspCtrlCommand(DumpBrel& parent)
    : ListCommand(parent),
      mName("TeaDspCtrl"),
      mTeaDspCtrl(connect(&IBrelManager::getTeaDspCtrl, "getTeaDspCtrl() fail\n")) {}

std::string TeaDspCtrlCommand::getSimpleDescription() const {
    return "TeaDspCtrl Module";
}

Status TeaDspCtrlCommand::registerAllOptions() {
    addHelp();
    return OK;
}

}  // namespace dumpbrel
}  // namespace android
