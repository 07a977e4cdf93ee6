#include <cstdio>
#include <iostream>
#include <memory>
#include <string>

#include "framework/ListCommand.h"
#include "service/ISoundScreenAngleCtrl.h"

namespace android {
namespace dumpbrel {

class SoundScreenAngleCtrlCommand : public ListCommand {
public:
    explicit SoundScreenAngleCtrlCommand(DumpBrel& parent);
    std::string getName() const override { return mName; }
    std::string getSimpleDescription() const override { return "SoundScreenAngleCtrl Module"; }
    Status registerAllOptions() override;

private:
    std::string mName;
    sp<ISoundScreenAngleCtrl> mSoundScreenAngleCtrl;
};

SoundScreenAngleCtrlCommand::SoundScreenAngleCtrlCommand(DumpBrel& parent)
    : ListCommand(parent),
      mName("SoundScreenAngleCtrl"),
      mSoundScreenAngleCtrl(
          connect(&IBrelManager::getSoundScreenAngleCtrl, "getSoundScreenAngleCtrl() fail\n")) {}

Status SoundScreenAngleCtrlCommand::registerAllOptions() {
    addHelp();
    add("g", "getSoundScreenAngle", kNone, mSoundScreenAngleCtrl,
        [](ISoundScreenAngleCtrl& screen, const Input&) {
            SoundScreenAngle angle = screen.getSoundScreenAngle();
            std::cout << "Current Sound Screen Angle: Start: " << angle.start_angle
                      << ", End: " << angle.end_angle << '\n';
            return OK;
        });
    add("s:", "setSoundScreenAngle", kRequired, mSoundScreenAngleCtrl,
        [](ISoundScreenAngleCtrl& screen, const Input& in) {
            int startAngle = 0;
            int endAngle = 0;
            if (in.missing() || sscanf(in.text, "%d,%d", &startAngle, &endAngle) != 2) {
                std::cerr << "Invalid argument format. Use: start_angle,end_angle" << '\n';
                return USAGE;
            }
            // The angles go as typed: no range, no order between them.
            if (!screen.setSoundScreenAngle(startAngle, endAngle))
                std::cout << "Successfully set sound screen angle to Start: " << startAngle
                          << ", End: " << endAngle << '\n';
            else
                std::cerr << "Failed to set sound screen angle" << '\n';
            return OK;
        });
    return OK;
}

std::unique_ptr<ListCommand> newSoundScreenAngleCtrlCommand(DumpBrel& parent) {
    return std::make_unique<SoundScreenAngleCtrlCommand>(parent);
}

}  // namespace dumpbrel
}  // namespace android
