#include "modules/Modules.h"

namespace android {
namespace dumpbrel {

SerialCtrlCommand::SerialCtrlCommand(DumpBrel& parent)
    : ListCommand(parent),
      mName("SerialCtrl"),
      mSerialCtrl(connect(&IBrelManager::getSerialCtrl, "getSerialCtrl() fail\n")) {}

std::string SerialCtrlCommand::getSimpleDescription() const {
    return "SerialCtrl Module";
}

Status SerialCtrlCommand::registerAllOptions() {
    addHelp();
    return OK;
}

}  // namespace dumpbrel
}  // namespace android
