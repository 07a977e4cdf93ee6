#include "modules/Modules.h"

namespace android {
namespace dumpbrel {

SourceCtrlCommand::SourceCtrlCommand(DumpBrel& parent)
    : ListCommand(parent),
      mName("SourceCtrl"),
      mSourceCtrl(connect(&IBrelManager::getSourceCtrl, "getSourceCtrl() fail\n")) {}

std::string SourceCtrlCommand::getSimpleDescription() const {
    return "SourceCtrl Module";
}

Status SourceCtrlCommand::registerAllOptions() {
    addHelp();
    return OK;
}

}  // namespace dumpbrel
}  // namespace android
