#pragma once

#include <utils/RefBase.h>

namespace android {

class ISerialCtrl : public RefBase {
public:
    virtual void SetSerialSwitch(int device, bool enable, int baudrate) = 0;
    virtual int getRS232Baudrate() = 0;
    virtual int getRS232Port() = 0;
    virtual void setSerialDeviceId(int device, int id) = 0;
    virtual int getSerialDeviceId(int device) = 0;

protected:
    ~ISerialCtrl() override = default;
};

}  // namespace android
