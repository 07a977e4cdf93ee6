#include "Panel.h"
#include "service/ISourceCtrl.h"

namespace {

class SimSourceCtrl : public sim::Control<android::ISourceCtrl> {
public:
    SimSourceCtrl() : Control("ISourceCtrl", kDefaults) {}

    int getChannelList() override { return call<int>(__func__); }
    int getCurInputSource() override { return call<int>(__func__); }
    int setCurInputSource(int sourceId) override { return call<int>(__func__, sourceId); }
    void setHdmiRxEdidVersion(int sourceId, int version) override {
        call(__func__, sourceId, version);
    }
    int getHdmiRxEdidVersion(int sourceId) override { return call<int>(__func__, sourceId); }
    int setHdmiStandbyEn(bool enable) override { return call<int>(__func__, enable); }
    int getHdmiStandbyEn() override { return call<int>(__func__); }

private:
    static constexpr const char* kDefaults = R"({
        "getChannelList": 511,
        "getCurInputSource": 24,
        "setCurInputSource": 0,
        "getHdmiRxEdidVersion": 2,
        "setHdmiStandbyEn": 0,
        "getHdmiStandbyEn": 1
    })";
};

}  // namespace

template <>
android::ISourceCtrl* sim::make<android::ISourceCtrl>() {
    return new SimSourceCtrl;
}
