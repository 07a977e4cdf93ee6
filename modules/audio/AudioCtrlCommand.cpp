#include <cstdlib>
#include <iostream>
#include <memory>
#include <string>
#include <type_traits>
#include <vector>

#include "framework/ListCommand.h"
#include "framework/Rows.h"
#include "service/IAudioCtrl.h"

namespace android {
namespace dumpbrel {

class AudioCtrlCommand : public ListCommand {
public:
    explicit AudioCtrlCommand(DumpBrel& parent);
    std::string getName() const override { return mName; }
    std::string getSimpleDescription() const override { return "AudioCtrl Module"; }
    Status registerAllOptions() override;

private:
    std::string mName;
    sp<IAudioCtrl> mAudioCtrl;
};

namespace {

// A value set from the pair "<module or channel>,<value>", both read with atoi: `label`, fail
// or success by the result, then `first` and the first field as typed, ", value = " and the
// second field as typed.
auto setValue(const char* label, const char* first, int (IAudioCtrl::*op)(int, int)) {
    return [label, first, op](IAudioCtrl& audio, const Input& in) -> Status {
        std::vector<std::string> f = in.fields(2);
        int result = (audio.*op)(atoi(f[0].c_str()), atoi(f[1].c_str()));
        std::cout << label << failOrSuccess(result) << first << f[0] << ", value = " << f[1]
                  << '\n';
        return OK;
    };
}

// A status set per module from the pair "<module>,<status>", both read with atoi (the status
// as a bool where the operation takes one): `label`, ", ret = " and the result, then both
// fields as typed.
template <typename S>
auto setModuleStatus(const char* label, int (IAudioCtrl::*op)(int, S)) {
    return [label, op](IAudioCtrl& audio, const Input& in) -> Status {
        if (in.missing()) return USAGE;
        std::vector<std::string> f = in.fields(2);
        int module = atoi(f[0].c_str());
        int status = atoi(f[1].c_str());
        int result;
        if constexpr (std::is_same_v<S, bool>)
            result = (audio.*op)(module, status != 0);
        else
            result = (audio.*op)(module, status);
        std::cout << label << ", ret = " << result << ", module = " << f[0]
                  << ", status = " << f[1] << '\n';
        return OK;
    };
}

}  // namespace

AudioCtrlCommand::AudioCtrlCommand(DumpBrel& parent)
    : ListCommand(parent),
      mName("AudioCtrl"),
      mAudioCtrl(connect(&IBrelManager::getAudioCtrl, "getAudioCtrl() fail\n")) {}

Status AudioCtrlCommand::registerAllOptions() {
    using Audio = IAudioCtrl;
    addHelp();
    add("l:", "setAudioLineOutEnabled", kRequired, mAudioCtrl,
        printStoiAndResult("setAudioLineOutEnabled ", &Audio::setAudioLineOutEnabled, " ret= "));
    add("p:", "setAudioPathInternalEnabled", kRequired, mAudioCtrl,
        printStoiAndResult("setAudioPathInternalEnabled ",
                           &Audio::setAudioPathInternalEnabled, " ret= "));
    add("s:", "setSPDIFOutEnabled", kRequired, mAudioCtrl,
        printStoiAndResult("setSPDIFOutEnabled ", &Audio::setSPDIFOutEnabled, " ret= "));
    add("a", "isMicrophoneAvaliable", kNone, mAudioCtrl,
        printResult("isMicrophoneAvaliable: ", &Audio::isMicrophoneAvaliable, trueFalse));
    add("o", "getOtgMicState", kNone, mAudioCtrl,
        printResult("getOtgMicState: ", &Audio::getOtgMicState, trueFalse));
    add("t:", "setOtgMicState", kRequired, mAudioCtrl, [](Audio& audio, const Input& in) {
        int state = 0;
        if (!in.toInt(state)) return USAGE;
        std::cout << "setOtgMicState state= " << state
                  << " ret= " << audio.setOtgMicState(state != 0) << '\n';
        return OK;
    });
    add("b", "getSubwooferOutProfile", kNone, mAudioCtrl,
        printResult("getSubwooferOutProfile ret= ", &Audio::getSubwooferOutProfile));
    add("o:", "setSubwooferOutProfile", kRequired, mAudioCtrl, [](Audio& audio, const Input& in) {
        int profile = 0;
        if (!in.toInt(profile)) return USAGE;
        std::cout << "setSubwooferOutProfile ret= "
                  << (audio.setSubwooferOutProfile(profile) != 0 ? 1 : 0) << '\n';
        return OK;
    });
    add("c:", "getAudioGain", kRequired, mAudioCtrl,
        printResultForStoi("getAudioGain ret= ", &Audio::getAudioGain));
    add("d:", "setAudioGain", kRequired, mAudioCtrl,
        setValue("setAudioGain ", ", module = ", &Audio::setAudioGain));
    add("y:", "getAudioDelay", kRequired, mAudioCtrl,
        printResultForStoi("getAudioDelay ret= ", &Audio::getAudioDelay));
    add("e:", "setAudioDelay", kRequired, mAudioCtrl,
        setValue("setAudioDelay ", ", channel = ", &Audio::setAudioDelay));
    add("e:", "getAudioOutEnableStatus", kRequired, mAudioCtrl,
        printResultForStoi("getAudioOutEnableStatus ret= ", &Audio::getAudioOutEnableStatus));
    add("f:", "setAudioOutEnableStatus", kRequired, mAudioCtrl,
        setModuleStatus("setAudioOutEnableStatus ", &Audio::setAudioOutEnableStatus));
    add("z:", "setTrebleOneChannelMute", kRequired, mAudioCtrl,
        setModuleStatus("setTrebleOneChannelMute ", &Audio::setTrebleOneChannelMute));
    // The letter o takes no argument (its first row is getOtgMicState) but runs this row.
    add("o:", "setBassOneChannelMute", kRequired, mAudioCtrl,
        setModuleStatus("setBassOneChannelMute ", &Audio::setBassOneChannelMute));
    add("x:", "getEQMode", kNone, mAudioCtrl, printResult("getEQMode ret= ", &Audio::getEQMode));
    add("s:", "setEQMode", kRequired, mAudioCtrl,
        printResultForStoi("setEQMode ", &Audio::setEQMode, failOrSuccess));
    add("x:", "getAudioOutMode", kNone, mAudioCtrl,
        printResult("getAudioOutMode ret= ", &Audio::getAudioOutMode));
    add("s:", "setAudioOutMode", kRequired, mAudioCtrl,
        printResultForStoi("setAudioOutMode ", &Audio::setAudioOutMode, failOrSuccess));
    add("getLineInConnectStatus:", "getLineInConnectStatus", kNone, mAudioCtrl,
        printResult("getLineInConnectStatus: ", &Audio::getLineInConnectStatus, trueFalse));
    return OK;
}

std::unique_ptr<ListCommand> newAudioCtrlCommand(DumpBrel& parent) {
    return std::make_unique<AudioCtrlCommand>(parent);
}

}  // namespace dumpbrel
}  // namespace android
