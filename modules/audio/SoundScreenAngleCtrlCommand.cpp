#include "modules/Modules.h"

namespace android {
namespace dumpbrel {

SoundScreenAngleCtrlCommand::SoundScreenAngleCtrlCommand(DumpBrel& parent)
    : ListCommand(parent),
      mName("SoundScreenAngleCtrl"),
      mSoundScreenAngleCtrl(connect(&IBrelManager::getSoundScreenAngleCtrl, "getSoundScreenAngleCtrl() fail\n")) {}

std::string SoundScreenAngleCtrlCommand::getSimpleDescription() const {
    return "SoundScreenAngleCtrl Module";
}

Status SoundScreenAngleCtrlCommand::registerAllOptions() {
    addHelp();
    return OK;
}

}  // namespace dumpbrel
}  // namespace android
