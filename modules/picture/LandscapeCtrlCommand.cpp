#include "modules/Modules.h"

namespace android {
namespace dumpbrel {

LandscapeCtrlCommand::LandscapeCtrlCommand(DumpBrel& parent)
    : ListCommand(parent),
      mName("LandscapeCtrl"),
      mLandscapeCtrl(connect(&IBrelManager::getLandscapeCtrl, "getLandscapeCtrl() fail\n")) {}

std::string LandscapeCtrlCommand::getSimpleDescription() const {
    return "LandscapeCtrl Module";
}

Status LandscapeCtrlCommand::registerAllOptions() {
    addHelp();
    return OK;
}

}  // namespace dumpbrel
}  // namespace android
