#include <cstdlib>
#include <iostream>
#include <memory>
#include <string>

#include "framework/ListCommand.h"
#include "service/IMicrophoneCtrl.h"

namespace android {
namespace dumpbrel {

class MicrophoneCtrlCommand : public ListCommand {
public:
    explicit MicrophoneCtrlCommand(DumpBrel& parent);
    std::string getName() const override { return mName; }
    std::string getSimpleDescription() const override { return "MicrophoneCtrl Module"; }
    Status registerAllOptions() override;

private:
    std::string mName;
    sp<IMicrophoneCtrl> mMicrophoneCtrl;
};

MicrophoneCtrlCommand::MicrophoneCtrlCommand(DumpBrel& parent)
    : ListCommand(parent),
      mName("MicrophoneCtrl"),
      mMicrophoneCtrl(connect(&IBrelManager::getMicrophoneCtrl, "getMicrophoneCtrl() fail\n")) {}

// This table has no help row: -h and --help are unknown options here.
Status MicrophoneCtrlCommand::registerAllOptions() {
    add("c:", "isBuildInMicEnabled", kRequired, mMicrophoneCtrl,
        [](IMicrophoneCtrl& mic, const Input& in) {
            int micType = 0;
            if (!in.toInt(micType)) return USAGE;
            std::cout << "isBuildInMicEnabled" << " ret= "
                      << static_cast<int>(mic.isBuildInMicEnabled(micType)) << '\n';
            return OK;
        });
    add("s:", "setBuildInMicEnabled", kRequired, mMicrophoneCtrl,
        [](IMicrophoneCtrl& mic, const Input& in) {
            std::vector<std::string> field = in.fields(2);
            bool ok = mic.setBuildInMicEnabled(atoi(field[0].c_str()), atoi(field[1].c_str()) != 0);
            std::cout << "setBuildInMicEnabled " << (ok ? "success" : "fail")
                      << ", mic_type = " << field[0] << ", state = " << field[1] << '\n';
            return OK;
        });
    return OK;
}

std::unique_ptr<ListCommand> newMicrophoneCtrlCommand(DumpBrel& parent) {
    return std::make_unique<MicrophoneCtrlCommand>(parent);
}

}  // namespace dumpbrel
}  // namespace android
