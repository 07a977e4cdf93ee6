#pragma once

#include <utils/RefBase.h>

namespace android {

class IDebugCtrl : public RefBase {
public:
    virtual bool getSuperRootState() = 0;
    // The text is read during the call only.
    virtual bool setSuperRootState(const char* state) = 0;

protected:
    ~IDebugCtrl() override = default;
};

}  // namespace android
