#pragma once

#include <string>
#include <vector>

#include <utils/RefBase.h>

namespace android {

// One touch firmware.
struct EntityFwTouch {
    int touchModel = 0;
    int touchType = 0;
    int fwTouchType = 0;
    std::string touchCurrentVersion;
    bool isSupportUsbUpgrade = false;
    std::string usbUpgradeTouchBinName;
    bool isSupportOtaUpgrade = false;
    std::string otaUpgradeTouchBinPath;
    std::string otaTouchBasicBinVersion;
    std::string otaTouchKey;
    bool needRebootWhenUpgraded = false;
};

// One touch driver. The fields behind the version are completed with the interface.
struct EntityFwTouchDriver {
    int touchModel = 0;
    int touchType = 0;
    int swTouchDriverType = 0;
    std::string touchDriverCurrentVersion;
    bool isSupportUsbUpgrade = false;
};

class IFwTouchCtrl : public RefBase {
public:

protected:
    ~IFwTouchCtrl() override = default;
};

}  // namespace android
