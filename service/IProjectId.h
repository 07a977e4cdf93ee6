#pragma once

#include <utils/RefBase.h>
#include <utils/String16.h>

namespace android {

class IProjectId : public RefBase {
public:
    virtual void setProjectIdByIndex(int projectId) = 0;
    virtual int getProjectIdIndex() = 0;
    virtual bool getEyePqFixedEnable() = 0;
    virtual String16 getEyePqFixedValue() = 0;

protected:
    ~IProjectId() override = default;
};

}  // namespace android
