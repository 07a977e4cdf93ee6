#include "modules/Modules.h"

namespace android {
namespace dumpbrel {

RGBLedCtrlCommand::RGBLedCtrlCommand(DumpBrel& parent)
    : ListCommand(parent),
      mName("RGBLedCtrl"),
      mRGBLedCtrl(connect(&IBrelManager::getRGBLedCtrl, "getRGBLedCtrl() fail\n")) {}

std::string RGBLedCtrlCommand::getSimpleDescription() const {
    return "RGBLedCtrl Module";
}

Status RGBLedCtrlCommand::registerAllOptions() {
    addHelp();
    return OK;
}

}  // namespace dumpbrel
}  // namespace android
