#pragma once

#include <vector>

#include <utils/RefBase.h>
#include <utils/String16.h>

namespace android {

class IDevicePortCtrl : public RefBase {
public:
    // 1 on success, any other value is a failure status. `port` is read during the call only.
    virtual int setDevicePortEnabled(const char* port, bool enabled) = 0;
    // Fills `ports`, empty on entry; 0 on success.
    virtual int getDevicePortList(std::vector<String16>& ports) = 0;

protected:
    ~IDevicePortCtrl() override = default;
};

}  // namespace android
