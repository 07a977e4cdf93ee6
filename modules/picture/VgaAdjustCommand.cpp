#include "modules/Modules.h"

namespace android {
namespace dumpbrel {

VgaAdjustCommand::VgaAdjustCommand(DumpBrel& parent)
    : ListCommand(parent),
      mName("VgaAdjust"),
      mVgaAdjust(connect(&IBrelManager::getVgaAdjust, "getVgaAdjust() fail\n")) {}

std::string VgaAdjustCommand::getSimpleDescription() const {
    return "VgaAdjust Module";
}

Status VgaAdjustCommand::registerAllOptions() {
    addHelp();
    return OK;
}

}  // namespace dumpbrel
}  // namespace android
