#include <memory>

#include "framework/DumpBrel.h"
#include "framework/ListCommand.h"

namespace android {
namespace dumpbrel {

// Every sub-service, in the order of the listing. A new sub-service is one line here; its unit
// under modules/<group>/ holds its class, its rows and the new<Class>() that builds it.
#define DUMPBREL_MODULES(X) \
    X(AnionCtrlCommand) \
    X(AtCfgControlCommand) \
    X(AudioCtrlCommand) \
    X(AvmanagerCommand) \
    X(BacklightCtrlCommand) \
    X(BluetoothCtrlCommand) \
    X(BurnKeyCtrlCommand) \
    X(BurnMacCtrlCommand) \
    X(CameraCtrlCommand) \
    X(DeviceCtrlCommand) \
    X(ExtendDisplayCtrlCommand) \
    X(FwTouchCtrlCommand) \
    X(FwUpgradeCommand) \
    X(IoBoxCtrlCommand) \
    X(KeyboardCtrlCommand) \
    X(NetworkCtrlCommand) \
    X(PQCtrlCommand) \
    X(PcModuleCtrlCommand) \
    X(PmsCtrlCommand) \
    X(ProjectIdCommand) \
    X(RGBLedCtrlCommand) \
    X(RemoteCtrlCommand) \
    X(Rs232CtrlCommand) \
    X(SensorBoxCtrlCommand) \
    X(SerialCtrlCommand) \
    X(SmartPenModeCtrlCommand) \
    X(SourceCtrlCommand) \
    X(SystemCtrlCommand) \
    X(TxbCtrlCommand) \
    X(VgaAdjustCommand) \
    X(XbugCtrlCommand) \
    X(LandscapeCtrlCommand) \
    X(TouchCtrlCommand) \
    X(SoundScreenAngleCtrlCommand) \
    X(AiNoiseCtrlCommand) \
    X(DevicePortCtrlCommand) \
    X(TeaDspCtrlCommand) \
    X(GpioCtrlCommand) \
    X(SuspendCtrlCommand) \
    X(MicrophoneCtrlCommand) \
    X(DebugCtrlCommand) \

#define DUMPBREL_DECLARE(Class) std::unique_ptr<ListCommand> new##Class(DumpBrel& parent);
DUMPBREL_MODULES(DUMPBREL_DECLARE)
#undef DUMPBREL_DECLARE

void registerModules(DumpBrel& dumpBrel) {
#define DUMPBREL_REGISTER(Class) dumpBrel.registerListCommand(new##Class(dumpBrel));
    DUMPBREL_MODULES(DUMPBREL_REGISTER)
#undef DUMPBREL_REGISTER
}

}  // namespace dumpbrel
}  // namespace android
