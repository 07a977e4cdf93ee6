#pragma once

#include <cstdint>
#include <vector>

#include <utils/RefBase.h>

namespace android {

// A boot mode of the PC module. The numbers are the service's; the tool names none of them.
enum _EnumPcBootMode : int32_t {};

class IPcModuleCtrl : public RefBase {
public:
    virtual int getPcState() = 0;
    virtual int setPcSwitchOn() = 0;
    virtual int setPcSwitchOff() = 0;
    virtual int setPcRecovery() = 0;
    virtual std::vector<_EnumPcBootMode> getSupportPcBootModeList() = 0;
    virtual bool setPcBootMode(int mode) = 0;
    virtual int getPcBootMode() = 0;

protected:
    ~IPcModuleCtrl() override = default;
};

}  // namespace android
