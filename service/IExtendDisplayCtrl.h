#pragma once

#include <string>
#include <vector>

#include <utils/RefBase.h>
#include <utils/String16.h>

namespace android {

class IExtendDisplayCtrl : public RefBase {
public:
    virtual int getTypecOutHDCPStatus() = 0;  // 1 for on
    virtual void setTypecOutHDCPStatus(bool on) = 0;
    virtual int getExtendDisplayHDCPStatus() = 0;  // 1 for on
    virtual void setExtendDisplayHDCPStatus(bool on) = 0;
    virtual void setExtendDisplayEnabled(bool on) = 0;
    virtual bool getExtendDisplayEnabled() = 0;
    virtual void setHdmiInOutEnabled(bool on) = 0;
    virtual bool getHdmiInOutEnabled() = 0;
    virtual std::vector<std::string> getExtendDisplayUserResolutionList() = 0;
    virtual void setExtendDisplayResolution(const String16& resolution) = 0;
    virtual String16 getExtendDisplayResolution() = 0;

protected:
    ~IExtendDisplayCtrl() override = default;
};

}  // namespace android
