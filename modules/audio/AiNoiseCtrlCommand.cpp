#include <iostream>
#include <memory>
#include <string>

#include "framework/ListCommand.h"
#include "framework/Rows.h"
#include "service/IAiNoiseCtrl.h"

namespace android {
namespace dumpbrel {

class AiNoiseCtrlCommand : public ListCommand {
public:
    explicit AiNoiseCtrlCommand(DumpBrel& parent);
    std::string getName() const override { return mName; }
    std::string getSimpleDescription() const override { return "AiNoiseCtrl Module"; }
    Status registerAllOptions() override;

private:
    std::string mName;
    sp<IAiNoiseCtrl> mAiNoiseCtrl;
};

AiNoiseCtrlCommand::AiNoiseCtrlCommand(DumpBrel& parent)
    : ListCommand(parent),
      mName("AiNoiseCtrl"),
      mAiNoiseCtrl(connect(&IBrelManager::getAiNoiseCtrl, "getAiNoiseCtrl() fail\n")) {}

Status AiNoiseCtrlCommand::registerAllOptions() {
    addHelp();
    add("g", "getAiNoise", kNone, mAiNoiseCtrl,
        printResult("Current AI Noise val: ", &IAiNoiseCtrl::getAiNoise));
    add("s:", "setAiNoise", kRequired, mAiNoiseCtrl, [](IAiNoiseCtrl& noise, const Input& in) {
        float value = 0.0f;
        if (!in.scanOne(value)) return USAGE;
        // Both bounds are valid; a NaN fails neither test and goes through.
        if (value < 0.0f || value > 1.0f) {
            std::cerr << "Invalid argument format. Use: (0.0f-1.0)" << '\n';
            return USAGE;
        }
        // The service answers false when the value was taken.
        if (!noise.setAiNoise(value))
            std::cout << "Successfully set Ai Noise set_fl= " << value << '\n';
        else
            std::cerr << "Failed to set Ai Noise " << '\n';
        return OK;
    });
    return OK;
}

std::unique_ptr<ListCommand> newAiNoiseCtrlCommand(DumpBrel& parent) {
    return std::make_unique<AiNoiseCtrlCommand>(parent);
}

}  // namespace dumpbrel
}  // namespace android
