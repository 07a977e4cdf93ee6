#pragma once

#include <string>
#include <vector>

#include <utils/RefBase.h>
#include <utils/String16.h>

namespace android {

// One MAC address type that the device can take.
struct EntitySwMac {
    int KeyType = 0;
    std::string CurrentVersion;
    bool IsSupportUsbBurn = false;
    std::string UsbBurnKeyBinName;
    bool NeedRebootWhenBurned = false;
};

class IBurnMacCtrl : public RefBase {
public:
    // Fills a list that the caller hands in empty.
    virtual bool getSupportBurnMacList(std::vector<EntitySwMac>& macList) = 0;
    virtual bool setBurnMac(int macType, const String16& macValue) = 0;
    // macValue needs to stay valid for the call only.
    virtual bool setBurnMac2(int macType, const char* macValue, int macExtra) = 0;
    virtual String16 getBurnMac(int macType) = 0;

protected:
    ~IBurnMacCtrl() override = default;
};

}  // namespace android
