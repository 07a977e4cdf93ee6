#include "modules/Modules.h"

namespace android {
namespace dumpbrel {

AudioCtrlCommand::AudioCtrlCommand(DumpBrel& parent)
    : ListCommand(parent),
      mName("AudioCtrl"),
      mAudioCtrl(connect(&IBrelManager::getAudioCtrl, "getAudioCtrl() fail\n")) {}

std::string AudioCtrlCommand::getSimpleDescription() const {
    return "AudioCtrl Module";
}

Status AudioCtrlCommand::registerAllOptions() {
    addHelp();
    return OK;
}

}  // namespace dumpbrel
}  // namespace android
