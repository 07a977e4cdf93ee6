#include "Panel.h"
#include "service/ITxbCtrl.h"

namespace {

class SimTxbCtrl : public sim::Control<android::ITxbCtrl> {
public:
    SimTxbCtrl() : Control("ITxbCtrl", kDefaults) {}

    int getTxbSensorMuteState() override { return call<int>(__func__); }
    bool setTxbSensorMuteState(int num, bool state) override {
        return call<bool>(__func__, num, state);
    }
    int getTxbSensorSelfTestState(int* values) override {
        return call<int>(__func__, sim::outArray("values", values, android::kTxbSelfTestValues));
    }
    bool setTxbSensorSelfTestState(const int* values, int len) override {
        return call<bool>(__func__, sim::inArray(values, android::kTxbSelfTestValues), len);
    }

private:
    static constexpr const char* kDefaults = R"({
        "getTxbSensorMuteState": 0,
        "setTxbSensorMuteState": true,
        "getTxbSensorSelfTestState": {"result": 4, "values": [1, 1, 1, 1]},
        "setTxbSensorSelfTestState": true
    })";
};

}  // namespace

template <>
android::ITxbCtrl* sim::make<android::ITxbCtrl>() {
    return new SimTxbCtrl;
}
