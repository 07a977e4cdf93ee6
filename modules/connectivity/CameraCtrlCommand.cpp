#include "modules/Modules.h"

namespace android {
namespace dumpbrel {

CameraCtrlCommand::CameraCtrlCommand(DumpBrel& parent)
    : ListCommand(parent),
      mName("CameraCtrl"),
      mCameraCtrl(connect(&IBrelManager::getCameraCtrl, "getCameraCtrl() fail\n")) {}

std::string CameraCtrlCommand::getSimpleDescription() const {
    return "CameraCtrl Module";
}

Status CameraCtrlCommand::registerAllOptions() {
    addHelp();
    return OK;
}

}  // namespace dumpbrel
}  // namespace android
