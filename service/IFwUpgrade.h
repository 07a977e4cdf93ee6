#pragma once

#include <vector>

#include <utils/RefBase.h>
#include <utils/String16.h>

namespace android {

// One MCU firmware as the service describes it. The record crosses the client library as it
// stands, so its field order and widths are part of that contract. The texts are
// zero-terminated within their width.
struct EntityFwInfoMcu {
    int mcuType = 0;
    int fwMcuType = 0;
    char mcuCurrentVersion[256] = {};
    int isSupportUsbUpgrade = 0;
    char usbUpgradeMcuBinName[256] = {};
    int isSupportOtaUpgrade = 0;
    char otaUpgradeMcuBinPath[256] = {};
    char otaMcuBasicBinVersion[256] = {};
    char otaMcuKey[64] = {};
    int needRebootWhenUpgraded = 0;
};

static_assert(sizeof(EntityFwInfoMcu) == 1108,
              "EntityFwInfoMcu must keep the layout that the client library uses");

class IFwUpgrade : public RefBase {
public:
    virtual bool setFirmwareUpgrade(int type, const String16& file) = 0;
    virtual String16 getMcuBinNameToUp(int type) = 0;
    virtual String16 getFwVersion(int type) = 0;
    virtual String16 getFwOtakey(int type) = 0;
    virtual String16 getFwInfoTypecList() = 0;
    // Fills a list that the caller hands in empty; true when the list is valid.
    virtual bool getFwMcuList(std::vector<EntityFwInfoMcu>& mcu_list) = 0;
    virtual String16 getFwTargetVersion(int type) = 0;
    virtual String16 getFwTargetBinPath(int type) = 0;

protected:
    ~IFwUpgrade() override = default;
};

}  // namespace android
