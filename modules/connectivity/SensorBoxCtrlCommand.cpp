#include "modules/Modules.h"

namespace android {
namespace dumpbrel {

SensorBoxCtrlCommand::SensorBoxCtrlCommand(DumpBrel& parent)
    : ListCommand(parent),
      mName("SensorBoxCtrl"),
      mSensorBoxCtrl(connect(&IBrelManager::getSensorBoxCtrl, "getSensorBoxCtrl() fail\n")) {}

std::string SensorBoxCtrlCommand::getSimpleDescription() const {
    return "SensorBoxCtrl Module";
}

Status SensorBoxCtrlCommand::registerAllOptions() {
    addHelp();
    return OK;
}

}  // namespace dumpbrel
}  // namespace android
