#include "Main.h"

#include <unistd.h>

#include <cstdio>
#include <memory>

#include "DumpBrel.h"
#include "modules/Modules.h"
#include "shell/Prompt.h"

namespace android {
namespace dumpbrel {

// Every sub-service, in the order of the listing. All are built on every run.
void registerModules(DumpBrel& dumpBrel) {
    dumpBrel.registerListCommand(std::make_unique<AnionCtrlCommand>(dumpBrel));
    dumpBrel.registerListCommand(std::make_unique<AtCfgControlCommand>(dumpBrel));
    dumpBrel.registerListCommand(std::make_unique<AudioCtrlCommand>(dumpBrel));
    dumpBrel.registerListCommand(std::make_unique<AvmanagerCommand>(dumpBrel));
    dumpBrel.registerListCommand(std::make_unique<BacklightCtrlCommand>(dumpBrel));
    dumpBrel.registerListCommand(std::make_unique<BluetoothCtrlCommand>(dumpBrel));
    dumpBrel.registerListCommand(std::make_unique<BurnKeyCtrlCommand>(dumpBrel));
    dumpBrel.registerListCommand(std::make_unique<BurnMacCtrlCommand>(dumpBrel));
    dumpBrel.registerListCommand(std::make_unique<CameraCtrlCommand>(dumpBrel));
    dumpBrel.registerListCommand(std::make_unique<DeviceCtrlCommand>(dumpBrel));
    dumpBrel.registerListCommand(std::make_unique<ExtendDisplayCtrlCommand>(dumpBrel));
    dumpBrel.registerListCommand(std::make_unique<FwTouchCtrlCommand>(dumpBrel));
    dumpBrel.registerListCommand(std::make_unique<FwUpgradeCommand>(dumpBrel));
    dumpBrel.registerListCommand(std::make_unique<IoBoxCtrlCommand>(dumpBrel));
    dumpBrel.registerListCommand(std::make_unique<KeyboardCtrlCommand>(dumpBrel));
    dumpBrel.registerListCommand(std::make_unique<NetworkCtrlCommand>(dumpBrel));
    dumpBrel.registerListCommand(std::make_unique<PQCtrlCommand>(dumpBrel));
    dumpBrel.registerListCommand(std::make_unique<PcModuleCtrlCommand>(dumpBrel));
    dumpBrel.registerListCommand(std::make_unique<PmsCtrlCommand>(dumpBrel));
    dumpBrel.registerListCommand(std::make_unique<ProjectIdCommand>(dumpBrel));
    dumpBrel.registerListCommand(std::make_unique<RGBLedCtrlCommand>(dumpBrel));
    dumpBrel.registerListCommand(std::make_unique<RemoteCtrlCommand>(dumpBrel));
    dumpBrel.registerListCommand(std::make_unique<Rs232CtrlCommand>(dumpBrel));
    dumpBrel.registerListCommand(std::make_unique<SensorBoxCtrlCommand>(dumpBrel));
    dumpBrel.registerListCommand(std::make_unique<SerialCtrlCommand>(dumpBrel));
    dumpBrel.registerListCommand(std::make_unique<SmartPenModeCtrlCommand>(dumpBrel));
    dumpBrel.registerListCommand(std::make_unique<SourceCtrlCommand>(dumpBrel));
    dumpBrel.registerListCommand(std::make_unique<SystemCtrlCommand>(dumpBrel));
    dumpBrel.registerListCommand(std::make_unique<TxbCtrlCommand>(dumpBrel));
    dumpBrel.registerListCommand(std::make_unique<VgaAdjustCommand>(dumpBrel));
    dumpBrel.registerListCommand(std::make_unique<XbugCtrlCommand>(dumpBrel));
    dumpBrel.registerListCommand(std::make_unique<LandscapeCtrlCommand>(dumpBrel));
    dumpBrel.registerListCommand(std::make_unique<TouchCtrlCommand>(dumpBrel));
    dumpBrel.registerListCommand(std::make_unique<SoundScreenAngleCtrlCommand>(dumpBrel));
    dumpBrel.registerListCommand(std::make_unique<AiNoiseCtrlCommand>(dumpBrel));
    dumpBrel.registerListCommand(std::make_unique<DevicePortCtrlCommand>(dumpBrel));
    dumpBrel.registerListCommand(std::make_unique<TeaDspCtrlCommand>(dumpBrel));
    dumpBrel.registerListCommand(std::make_unique<GpioCtrlCommand>(dumpBrel));
    dumpBrel.registerListCommand(std::make_unique<SuspendCtrlCommand>(dumpBrel));
    dumpBrel.registerListCommand(std::make_unique<MicrophoneCtrlCommand>(dumpBrel));
    dumpBrel.registerListCommand(std::make_unique<DebugCtrlCommand>(dumpBrel));
}

namespace {

bool mayRun(uid_t uid) {
    constexpr uid_t kRoot = 0;
    constexpr uid_t kShell = 2000;
    return uid == kRoot || uid == kShell;
}

}  // namespace

int dumpbrelMain(int argc, char** argv) {
    DumpBrel dumpBrel;  // asks for the manager before the user is checked

    uid_t uid = getuid();
    if (!mayRun(uid)) {
        fprintf(stderr, "uid = %u, permission denied\n", static_cast<unsigned>(uid));
        return -1;
    }

    registerModules(dumpBrel);

    if (argc < 2) return runPrompt(dumpBrel);
    dumpBrel.main(Arg{argc, argv});
    return 0;
}

}  // namespace dumpbrel
}  // namespace android
