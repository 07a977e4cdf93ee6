#include "modules/Modules.h"

namespace android {
namespace dumpbrel {

SuspendCtrlCommand::SuspendCtrlCommand(DumpBrel& parent)
    : ListCommand(parent),
      mName("SuspendCtrl"),
      mSuspendCtrl(connect(&IBrelManager::getSuspendCtrl, "SuspendCtrl() fail\n")) {}

std::string SuspendCtrlCommand::getSimpleDescription() const {
    return "SuspendCtrl Module";
}

Status SuspendCtrlCommand::registerAllOptions() {
    addHelp();
    return OK;
}

}  // namespace dumpbrel
}  // namespace android
