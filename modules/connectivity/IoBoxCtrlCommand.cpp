#include "modules/Modules.h"

namespace android {
namespace dumpbrel {

IoBoxCtrlCommand::IoBoxCtrlCommand(DumpBrel& parent)
    : ListCommand(parent),
      mName("IoBoxCtrl"),
      mIoBoxCtrl(connect(&IBrelManager::getIoBoxCtrl, "getIoBoxCtrl() fail\n")) {}

std::string IoBoxCtrlCommand::getSimpleDescription() const {
    return "IoBoxCtrl Module";
}

Status IoBoxCtrlCommand::registerAllOptions() {
    addHelp();
    return OK;
}

}  // namespace dumpbrel
}  // namespace android
