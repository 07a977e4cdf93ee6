#include "modules/Modules.h"

namespace android {
namespace dumpbrel {

GpioCtrlCommand::GpioCtrlCommand(DumpBrel& parent)
    : ListCommand(parent),
      mName("GpioCtrl"),
      mGpioCtrl(connect(&IBrelManager::getGpioCtrl, "getGpioCtrl() fail\n")) {}

std::string GpioCtrlCommand::getSimpleDescription() const {
    return "GpioCtrl Module";
}

Status GpioCtrlCommand::registerAllOptions() {
    addHelp();
    return OK;
}

}  // namespace dumpbrel
}  // namespace android
