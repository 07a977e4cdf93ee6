#include <memory>
#include <string>

#include "framework/ListCommand.h"
#include "service/ISensorBoxCtrl.h"

namespace android {
namespace dumpbrel {

class SensorBoxCtrlCommand : public ListCommand {
public:
    explicit SensorBoxCtrlCommand(DumpBrel& parent);
    std::string getName() const override { return mName; }
    std::string getSimpleDescription() const override { return "SensorBoxCtrl Module"; }
    Status registerAllOptions() override;

private:
    std::string mName;
    sp<ISensorBoxCtrl> mSensorBoxCtrl;
};

SensorBoxCtrlCommand::SensorBoxCtrlCommand(DumpBrel& parent)
    : ListCommand(parent),
      mName("SensorBoxCtrl"),
      mSensorBoxCtrl(connect(&IBrelManager::getSensorBoxCtrl, "getSensorBoxCtrl() fail\n")) {}

Status SensorBoxCtrlCommand::registerAllOptions() {
    addHelp();
    return OK;
}

std::unique_ptr<ListCommand> newSensorBoxCtrlCommand(DumpBrel& parent) {
    return std::make_unique<SensorBoxCtrlCommand>(parent);
}

}  // namespace dumpbrel
}  // namespace android
