#include "modules/Modules.h"

namespace android {
namespace dumpbrel {

AiNoiseCtrlCommand::AiNoiseCtrlCommand(DumpBrel& parent)
    : ListCommand(parent),
      mName("AiNoiseCtrl"),
      mAiNoiseCtrl(connect(&IBrelManager::getAiNoiseCtrl, "getAiNoiseCtrl() fail\n")) {}

std::string AiNoiseCtrlCommand::getSimpleDescription() const {
    return "AiNoiseCtrl Module";
}

Status AiNoiseCtrlCommand::registerAllOptions() {
    addHelp();
    return OK;
}

}  // namespace dumpbrel
}  // namespace android
