#include <cstdio>
#include <iostream>
#include <memory>
#include <string>

#include "framework/ListCommand.h"
#include "framework/Rows.h"
#include "service/ITeaDspCtrl.h"

namespace android {
namespace dumpbrel {

class TeaDspCtrlCommand : public ListCommand {
public:
    explicit TeaDspCtrlCommand(DumpBrel& parent);
    std::string getName() const override { return mName; }
    std::string getSimpleDescription() const override { return "TeaDspCtrl Module"; }
    Status registerAllOptions() override;

private:
    std::string mName;
    sp<ITeaDspCtrl> mTeaDspCtrl;
};

namespace {

// The one integer of a ranged row, read and tested against [low, high]; a value outside goes
// with the row's own message to standard error.
bool readRanged(const Input& in, int low, int high, const char* rangeMessage, int& value) {
    if (!in.scanOne(value)) return false;
    if (value < low || value > high) {
        std::cerr << rangeMessage << '\n';
        return false;
    }
    return true;
}

// The literals of a ranged setter: before the call, then on success (0) or failure.
struct SetterLines {
    const char* first;
    const char* success;
    const char* failure;
};

Status reportSet(const SetterLines& lines, int value, int (ITeaDspCtrl::*operation)(int),
                 ITeaDspCtrl& dsp) {
    std::cout << lines.first << value << '\n';
    int ret = (dsp.*operation)(value);
    if (ret == 0)
        std::cout << lines.success << ret << '\n';
    else
        std::cerr << lines.failure << ret << '\n';
    return OK;
}

constexpr const char* kOneOrThree = "Invalid argument format. Use: (1 ,2, 3)";
constexpr const char* kZeroOrOne = "Invalid argument format. Use: (0, 1)";

}  // namespace

TeaDspCtrlCommand::TeaDspCtrlCommand(DumpBrel& parent)
    : ListCommand(parent),
      mName("TeaDspCtrl"),
      mTeaDspCtrl(connect(&IBrelManager::getTeaDspCtrl, "getTeaDspCtrl() fail\n")) {}

Status TeaDspCtrlCommand::registerAllOptions() {
    addHelp();
    add("i", "GetDeviceInfo", kNone, mTeaDspCtrl,
        printResult("Get Device Info: ", &ITeaDspCtrl::GetDeviceInfo));
    add("m:", "getDeviceMute", kRequired, mTeaDspCtrl,
        [](ITeaDspCtrl& dsp, const Input& in) {
            int streamType = 0;
            if (!readRanged(in, 0, 1, "Invalid argument format. Use: (0 or 1)", streamType))
                return USAGE;
            // The service answers false when the mute state could be read.
            if (!dsp.getDeviceMute(streamType))
                std::cout << "Successfully getDeviceMute stream_type= " << streamType << '\n';
            else
                std::cerr << "Failed to getDeviceMute stream_type= " << streamType << '\n';
            return OK;
        },
        "0-1:\n --0:upstream --1:downstream");
    add("s:", "SetDevicePoeSinkRouteMode", kRequired, mTeaDspCtrl,
        [](ITeaDspCtrl& dsp, const Input& in) {
            int mode = 0;
            if (!readRanged(in, 1, 3, kOneOrThree, mode)) return USAGE;
            return reportSet({"set mode= ", "Successfully SetDevicePoeSinkRouteMode sintret= ",
                              "Failed to SetDevicePoeSinkRouteMode sintret= "},
                             mode, &ITeaDspCtrl::SetDevicePoeSinkRouteMode, dsp);
        },
        "\n1 or 2 or 3:\n -- 1:unknown mode\n -- 2:only main device\n -- 3:both mode\n");
    add("g", "GetDevicePoeSinkRouteMode", kNone, mTeaDspCtrl,
        printResult("GetDevicePoeSinkRouteMode gintret =",
                    &ITeaDspCtrl::GetDevicePoeSinkRouteMode));
    add("d:::::", "DevicePortAttachStateUpdate", kRequired, mTeaDspCtrl,
        [](ITeaDspCtrl& dsp, const Input& in) {
            // The short form carries its argument only when attached to the letter.
            if (in.missing()) return USAGE;
            char deviceId[50] = {};
            int portType = 0;
            char portName[50] = {};
            int attachInt = 0;
            char attachMessage[50] = {};
            if (sscanf(in.text, "%49[^,],%d,%49[^,],%d,%49[^,]", deviceId, &portType, portName,
                       &attachInt, attachMessage) != 5) {
                std::cerr << "Invalid argument format. Use: "
                             "device_id,port_type,port_name,attach,attach_message"
                          << '\n';
                return USAGE;
            }
            bool attach = attachInt != 0;
            std::cout << "val device_id= " << deviceId << '\n'
                      << "val port_type= " << portType << '\n'
                      << "val port_name= " << portName << '\n'
                      << "val attach= " << attach << '\n'
                      << "val attach_message= " << attachMessage << '\n'
                      << "val attach_int= " << attachInt << '\n';
            dsp.DevicePortAttachStateUpdate(deviceId, portType, portName, attach, attachMessage);
            return OK;
        },
        "\nfromat: device_id,port_type,port_name,attach,attach_message\n"
        " -- device_id 设备id\n"
        " --  port_type 设备IN/OUT端口类型\n"
        " -- port_name 设备端口名字\n"
        " -- attach 表示插入还是拔出\n"
        " -- attach_message 端口拔插事件详细描述\n");
    add("j", "GetAllDeviceInformation", kNone, mTeaDspCtrl,
        printResult("Get ALL Device Info: ", &ITeaDspCtrl::GetAllDeviceInformation),
        "返回所有模组设备信息");
    add("k:", "SetDeviceLineoutSinkRouteMode", kRequired, mTeaDspCtrl,
        [](ITeaDspCtrl& dsp, const Input& in) {
            int mode = 0;
            if (!readRanged(in, 1, 3, kOneOrThree, mode)) return USAGE;
            return reportSet({"set mode_set_liout= ",
                              "Successfully SetDeviceLineoutSinkRouteMode sintret_set_liout= ",
                              "Failed to SetDeviceLineoutSinkRouteMode sintret_set_liout= "},
                             mode, &ITeaDspCtrl::SetDeviceLineoutSinkRouteMode, dsp);
        },
        "\n1 or 2 or 3:\n -- 1:未知工作模式\n -- 2:单lineout输出工作模式\n"
        " -- 3:lineout+speaker工作模式\n");
    add("l", "GetDeviceLineoutSinkRouteMode", kNone, mTeaDspCtrl,
        printResult("GetDeviceLineoutSinkRouteMode gintret_get_liout =",
                    &ITeaDspCtrl::GetDeviceLineoutSinkRouteMode),
        "获取Lineout端口的输出模式");
    add("n", "GetDevicePortAttachInformation", kNone, mTeaDspCtrl,
        printResult("Get Device Port Attach Info: ", &ITeaDspCtrl::GetDevicePortAttachInformation));
    add("o:", "SetDeviceOffHook", kRequired, mTeaDspCtrl,
        [](ITeaDspCtrl& dsp, const Input& in) {
            int isOffhook = 0;
            if (!readRanged(in, 0, 1, kZeroOrOne, isOffhook)) return USAGE;
            return reportSet({"set is_offhook_set_off= ",
                              "Successfully SetDeviceOffHook sintret__set_off= ",
                              "Failed to SetDeviceOffHook sintret__set_off= "},
                             isOffhook, &ITeaDspCtrl::SetDeviceOffHook, dsp);
        },
        "\n0 or 1 :\n -- 1:(offhook)/0:(onhook)\n");
    add("p:", "SetDeviceMicrophoneOverallMute", kRequired, mTeaDspCtrl,
        [](ITeaDspCtrl& dsp, const Input& in) {
            int mode = 0;
            if (!readRanged(in, 0, 1, kZeroOrOne, mode)) return USAGE;
            return reportSet({"set mode_set_mic_mute= ",
                              "Successfully SetDeviceMicrophoneOverallMute sintret_set_mic_mute= ",
                              "Failed to SetDeviceMicrophoneOverallMute sintret_set_mic_mute= "},
                             mode, &ITeaDspCtrl::SetDeviceMicrophoneOverallMute, dsp);
        },
        "\n0 or 1 :\n -- （1:静音/0:非静音）\n");
    add("q", "GetDeviceMicrophoneOverallMute", kNone, mTeaDspCtrl,
        printResult("GetDeviceMicrophoneOverallMute gintret_get_mic_mute =",
                    &ITeaDspCtrl::GetDeviceMicrophoneOverallMute),
        "获取麦克风全局mute状态");
    add("r:", "SetDeviceRingCall", kRequired, mTeaDspCtrl,
        [](ITeaDspCtrl& dsp, const Input& in) {
            int mode = 0;
            if (!readRanged(in, 0, 1, kZeroOrOne, mode)) return USAGE;
            return reportSet({"set mode_set_ring_call= ",
                              "Successfully SetDeviceRingCall sintret_set_ring_call= ",
                              "Failed to SetDeviceRingCall sintret_set_ring_call= "},
                             mode, &ITeaDspCtrl::SetDeviceRingCall, dsp);
        },
        "\n0 or 1 :\n -- 1:(start ring call)/0:(stop ring call)\n");
    return OK;
}

std::unique_ptr<ListCommand> newTeaDspCtrlCommand(DumpBrel& parent) {
    return std::make_unique<TeaDspCtrlCommand>(parent);
}

}  // namespace dumpbrel
}  // namespace android
