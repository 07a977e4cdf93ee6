#include "Panel.h"
#include "service/IXbugCtrl.h"

namespace {

class SimXbugCtrl : public sim::Control<android::IXbugCtrl> {
public:
    SimXbugCtrl() : Control("IXbugCtrl", kDefaults) {}

    int setBrelServiceLogLevel(int level) override { return call<int>(__func__, level); }
    int getBrelServiceLogLevel(int type) override { return call<int>(__func__, type); }
    int setBrelFuntionChkBaseTime(int time) override { return call<int>(__func__, time); }
    int getBrelFuntionChkBaseTime() override { return call<int>(__func__); }
    int getBrelFuntionTimeOutList() override { return call<int>(__func__); }
    std::string getNodeInfo(const std::string& nodeName) override {
        return call<std::string>(__func__, nodeName);
    }

private:
    // The service logs from BREL_LOG_WARN up and watches its functions for 3000 ms.
    static constexpr const char* kDefaults = R"({
        "setBrelServiceLogLevel": 0,
        "getBrelServiceLogLevel": 5,
        "setBrelFuntionChkBaseTime": 0,
        "getBrelFuntionChkBaseTime": 3000,
        "getBrelFuntionTimeOutList": 0,
        "getNodeInfo": "state: ok"
    })";
};

}  // namespace

template <>
android::IXbugCtrl* sim::make<android::IXbugCtrl>() {
    return new SimXbugCtrl;
}
