#pragma once

#include <cstdint>
#include <vector>

#include <utils/RefBase.h>
#include <utils/String16.h>

namespace android {

// An input source as the service numbers it; the tool passes the numbers as typed.
enum _BrelEnumInputSourceId_ : int32_t {};

class IPmsCtrl : public RefBase {
public:
    virtual int getWakeupSrc() = 0;
    virtual int getWakeupSrcFromUboot() = 0;
    virtual String16 readAssetData(int first, int second) = 0;
    virtual bool setPmsWakeupSources(const std::vector<_BrelEnumInputSourceId_>& sources) = 0;

protected:
    ~IPmsCtrl() override = default;
};

}  // namespace android
