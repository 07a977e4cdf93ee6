#include "Panel.h"
#include "service/BrelCreator.h"
#include "service/IBrelManager.h"

// The controls, one per accessor of IBrelManager and in its order: SIM_CONTROLS(X) is X(Name)
// for the interface IName, handed out by getName and simulated in sim/Name.cpp.
#define SIM_CONTROLS(X)                                                                          \
    X(SystemCtrl) X(ProjectId) X(SourceCtrl) X(DeviceCtrl) X(DevicePortCtrl) X(NetworkCtrl)      \
    X(BluetoothCtrl) X(AtCfgControl) X(KeyboardCtrl) X(AvManagerCtrl) X(FwUpgrade) X(Rs232Ctrl)  \
    X(RGBLedCtrl) X(AudioCtrl) X(TouchCtrl) X(TeaDspCtrl) X(AnionCtrl) X(BacklightCtrl)          \
    X(VgaAdjust) X(CameraCtrl) X(SensorBoxCtrl) X(IoBoxCtrl) X(TxbCtrl) X(GpioCtrl) X(XbugCtrl)  \
    X(RemoteCtrl) X(PmsCtrl) X(ExtendDisplayCtrl) X(PQCtrl) X(PcModuleCtrl) X(SmartPenModeCtrl)  \
    X(MicrophoneCtrl) X(BurnKeyCtrl) X(BurnMacCtrl) X(FwTouchCtrl) X(LandscapeCtrl)              \
    X(SoundScreenAngleCtrl) X(AiNoiseCtrl) X(SuspendCtrl) X(SerialCtrl) X(DebugCtrl)

#define SIM_FACTORY(Name) template <> android::I##Name* sim::make<android::I##Name>();
SIM_CONTROLS(SIM_FACTORY)

#define SIM_ACCESSOR_NAME(Name) "get" #Name " "
const char sim::kAccessors[] = " " SIM_CONTROLS(SIM_ACCESSOR_NAME);

namespace android {

namespace {

// Every accessor hands out a new control, unless BREL_SIM_ABSENT names it or says "all".
class SimBrelManager : public IBrelManager {
    template <typename I>
    static I* give(const char* accessor) {
        if (sim::Panel::absent("all") || sim::Panel::absent(accessor)) return nullptr;
        return sim::make<I>();
    }

public:
#define SIM_ACCESSOR(Name) \
    I##Name* get##Name() override { return give<I##Name>("get" #Name); }
    SIM_CONTROLS(SIM_ACCESSOR)
};

}  // namespace

IBrelManager* BrelCreator::create() {
    if (sim::Panel::absent("manager")) return nullptr;
    return new SimBrelManager;
}

}  // namespace android
