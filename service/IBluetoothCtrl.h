#pragma once

#include <utils/RefBase.h>

namespace android {

class IBluetoothCtrl : public RefBase {
public:
    virtual bool isBleWakeup() = 0;
    virtual void setBleWakeup(bool enable) = 0;

protected:
    ~IBluetoothCtrl() override = default;
};

}  // namespace android
