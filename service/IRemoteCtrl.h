#pragma once

#include <utils/RefBase.h>
#include <utils/String16.h>

namespace android {

class IRemoteCtrl : public RefBase {
public:
    virtual bool disableRemoteCtrl() = 0;
    virtual bool enableRemoteCtrl() = 0;
    virtual String16 getParameter(const String16& key) = 0;
    virtual bool setParameter(const String16& key, const String16& value) = 0;

protected:
    ~IRemoteCtrl() override = default;
};

}  // namespace android
