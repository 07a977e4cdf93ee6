#include <cstdlib>
#include <iostream>
#include <memory>
#include <string>

#include "framework/ListCommand.h"
#include "framework/Rows.h"
#include "service/ICameraCtrl.h"

namespace android {
namespace dumpbrel {

class CameraCtrlCommand : public ListCommand {
public:
    explicit CameraCtrlCommand(DumpBrel& parent);
    std::string getName() const override { return mName; }
    std::string getSimpleDescription() const override { return "CameraCtrl Module"; }
    Status registerAllOptions() override;

private:
    std::string mName;
    sp<ICameraCtrl> mCameraCtrl;
};

CameraCtrlCommand::CameraCtrlCommand(DumpBrel& parent)
    : ListCommand(parent),
      mName("CameraCtrl"),
      mCameraCtrl(connect(&IBrelManager::getCameraCtrl, "getCameraCtrl() fail\n")) {}

Status CameraCtrlCommand::registerAllOptions() {
    addHelp();
    // The text and both numbers run together, value_b first.
    add("i:", "getCameraDeviceInfo", kRequired, mCameraCtrl,
        [](ICameraCtrl& camera, const Input& in) {
            BrelCameraInfo info;
            camera.getCameraDeviceInfo(atoi(in.text), info);
            std::cout << "CameraDeviceInfo: " << info.info_text << info.value_b << info.value_a
                      << "\n";
            return OK;
        });
    add("g", "getCameraEnable", kNone, mCameraCtrl,
        printResult("getCameraEnable: ", &ICameraCtrl::getCameraEnable, trueFalse));
    add("s:", "setCameraEnable", kRequired, mCameraCtrl, [](ICameraCtrl& camera, const Input& in) {
        int state = 0;
        if (!in.toInt(state)) return USAGE;
        bool ret = camera.setCameraEnable(state != 0);
        std::cout << "setCameraEnable state= " << state << " ret= " << ret << '\n';
        return OK;
    });
    return OK;
}

std::unique_ptr<ListCommand> newCameraCtrlCommand(DumpBrel& parent) {
    return std::make_unique<CameraCtrlCommand>(parent);
}

}  // namespace dumpbrel
}  // namespace android
