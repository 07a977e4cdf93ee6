#include "modules/Modules.h"

namespace android {
namespace dumpbrel {

MicrophoneCtrlCommand::MicrophoneCtrlCommand(DumpBrel& parent)
    : ListCommand(parent),
      mName("MicrophoneCtrl"),
      mMicrophoneCtrl(connect(&IBrelManager::getMicrophoneCtrl, "getMicrophoneCtrl() fail\n")) {}

std::string MicrophoneCtrlCommand::getSimpleDescription() const {
    return "MicrophoneCtrl Module";
}

Status MicrophoneCtrlCommand::registerAllOptions() {
    addHelp();
    return OK;
}

}  // namespace dumpbrel
}  // namespace android
