#include "Panel.h"
#include "service/IExtendDisplayCtrl.h"

namespace {

class SimExtendDisplayCtrl : public sim::Control<android::IExtendDisplayCtrl> {
public:
    SimExtendDisplayCtrl() : Control("IExtendDisplayCtrl", kDefaults) {}

    int getTypecOutHDCPStatus() override { return call<int>(__func__); }
    void setTypecOutHDCPStatus(bool on) override { call(__func__, on); }
    int getExtendDisplayHDCPStatus() override { return call<int>(__func__); }
    void setExtendDisplayHDCPStatus(bool on) override { call(__func__, on); }
    void setExtendDisplayEnabled(bool on) override { call(__func__, on); }
    bool getExtendDisplayEnabled() override { return call<bool>(__func__); }
    void setHdmiInOutEnabled(bool on) override { call(__func__, on); }
    bool getHdmiInOutEnabled() override { return call<bool>(__func__); }
    std::vector<std::string> getExtendDisplayUserResolutionList() override {
        return call<std::vector<std::string>>(__func__);
    }
    void setExtendDisplayResolution(const android::String16& resolution) override {
        call(__func__, resolution);
    }
    android::String16 getExtendDisplayResolution() override {
        return call<android::String16>(__func__);
    }

private:
    static constexpr const char* kDefaults = R"({
        "getTypecOutHDCPStatus": 1,
        "getExtendDisplayHDCPStatus": 1,
        "getExtendDisplayEnabled": true,
        "getHdmiInOutEnabled": false,
        "getExtendDisplayUserResolutionList": ["3840x2160p60", "1920x1080p60", "720x480p60"],
        "getExtendDisplayResolution": "3840x2160p60"
    })";
};

}  // namespace

template <>
android::IExtendDisplayCtrl* sim::make<android::IExtendDisplayCtrl>() {
    return new SimExtendDisplayCtrl;
}
