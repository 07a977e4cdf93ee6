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

// One touch driver.
struct EntityFwTouchDriver {
    int touchModel = 0;
    int touchType = 0;
    int swTouchDriverType = 0;
    std::string touchDriverCurrentVersion;
    bool isSupportUsbUpgrade = false;
    std::string usbUpgradeTouchDriverBinName;
};

class IFwTouchCtrl : public RefBase {
public:
    // Both fill a list that the caller hands in empty.
    virtual void getFwTouchList(std::vector<EntityFwTouch>& list) = 0;
    virtual void getFwTouchDriverInfoList(std::vector<EntityFwTouchDriver>& list) = 0;

protected:
    ~IFwTouchCtrl() override = default;
};

}  // namespace android
