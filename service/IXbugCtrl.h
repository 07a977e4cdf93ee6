#pragma once

#include <string>

#include <utils/RefBase.h>

namespace android {

class IXbugCtrl : public RefBase {
public:
    virtual int setBrelServiceLogLevel(int level) = 0;
    // type 1: the build level, 2: the current level.
    virtual int getBrelServiceLogLevel(int type) = 0;
    virtual int setBrelFuntionChkBaseTime(int time) = 0;
    virtual int getBrelFuntionChkBaseTime() = 0;
    virtual int getBrelFuntionTimeOutList() = 0;
    virtual std::string getNodeInfo(const std::string& nodeName) = 0;

protected:
    ~IXbugCtrl() override = default;
};

}  // namespace android
