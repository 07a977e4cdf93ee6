#pragma once

#include <string>
#include <vector>

#include <utils/RefBase.h>
#include <utils/String16.h>

namespace android {

// One key type that the device can take.
struct EntitySwKey {
    int KeyType = 0;
    std::string CurrentValue;
    std::string CurrentVersion;
    bool IsSupportUsbBurn = false;
    std::string UsbBurnKeyBinName;
    bool NeedRebootWhenBurned = false;
};

class IBurnKeyCtrl : public RefBase {
public:
    // Fills a list that the caller hands in empty.
    virtual bool getSupportBurnKeyList(std::vector<EntitySwKey>& keyList) = 0;
    virtual bool setBurnKey(int mode, const String16& keypath) = 0;
    virtual bool setCleanBurnKey(int mode) = 0;
    virtual String16 getBurnKey(int mode) = 0;
    virtual String16 getBurnKeyVersion(int mode) = 0;

protected:
    ~IBurnKeyCtrl() override = default;
};

}  // namespace android
