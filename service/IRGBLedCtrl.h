#pragma once

#include <utils/RefBase.h>

namespace android {

// The panel's status LEDs.
class IRGBLedCtrl : public RefBase {
public:
    virtual void setIRInputState() = 0;
    virtual void setPowerLedEnableState(int state) = 0;
    virtual void setLedOtaState(int state) = 0;
    virtual void setDiagnosisState(int state) = 0;
    virtual void setPowerStandbyState(int state) = 0;
    virtual void setLedOn(int led) = 0;
    virtual void setLedOff(int led) = 0;
    virtual bool setVaLedState(int state) = 0;
    virtual int getVaLedState() = 0;

protected:
    ~IRGBLedCtrl() override = default;
};

}  // namespace android
