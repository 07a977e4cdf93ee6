#pragma once

#include <utils/RefBase.h>
#include <utils/String16.h>

namespace android {

// The selector numbers are the service's own.
class IRs232Ctrl : public RefBase {
public:
    virtual String16 getSmartRs232FrontUsb(int selector) = 0;
    virtual String16 getSmartRs232SideUsb(int selector) = 0;
    virtual String16 getSmartRs232EthMac(int selector) = 0;
    virtual bool getATRs232TestResult() = 0;
    virtual String16 getEmmcSize() = 0;
    virtual String16 getRamSize() = 0;

protected:
    ~IRs232Ctrl() override = default;
};

}  // namespace android
