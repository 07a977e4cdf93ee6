#include "modules/Modules.h"

namespace android {
namespace dumpbrel {

PQCtrlCommand::PQCtrlCommand(DumpBrel& parent)
    : ListCommand(parent),
      mName("PQCtrl"),
      mPQCtrl(connect(&IBrelManager::getPQCtrl, "getPQCtrol() fail\n")) {}

std::string PQCtrlCommand::getSimpleDescription() const {
    return "PQCtrl Module";
}

Status PQCtrlCommand::registerAllOptions() {
    addHelp();
    return OK;
}

}  // namespace dumpbrel
}  // namespace android
