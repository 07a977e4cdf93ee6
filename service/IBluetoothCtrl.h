#pragma once

#include <utils/RefBase.h>

namespace android {

class IBluetoothCtrl : public RefBase {
public:

protected:
    ~IBluetoothCtrl() override = default;
};

}  // namespace android
