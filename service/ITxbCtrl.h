#pragma once

#include <utils/RefBase.h>

namespace android {

// Both self-test operations take an array of kTxbSelfTestValues ints.
constexpr int kTxbSelfTestValues = 32;

class ITxbCtrl : public RefBase {
public:
    virtual int getTxbSensorMuteState() = 0;
    virtual bool setTxbSensorMuteState(int num, bool state) = 0;
    // Fills at most 32 entries of `values` and returns how many it wrote.
    virtual int getTxbSensorSelfTestState(int values[kTxbSelfTestValues]) = 0;
    // Reads `values`; `len` goes to the service as given.
    virtual bool setTxbSensorSelfTestState(const int values[kTxbSelfTestValues], int len) = 0;

protected:
    ~ITxbCtrl() override = default;
};

}  // namespace android
