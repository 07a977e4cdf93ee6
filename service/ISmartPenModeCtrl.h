#pragma once

#include <cstdint>
#include <vector>

#include <utils/RefBase.h>

namespace android {

// A smart pen mode; the service owns the meaning of the numbers.
enum _EnumSmartPenMode : int32_t {};

class ISmartPenModeCtrl : public RefBase {
public:
    virtual std::vector<_EnumSmartPenMode> getSupportSmartPenModeList() = 0;
    virtual bool setSmartPenMode(int mode) = 0;
    virtual int getSmartPenMode() = 0;

protected:
    ~ISmartPenModeCtrl() override = default;
};

}  // namespace android
