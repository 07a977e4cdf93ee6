#include "Panel.h"
#include "service/IProjectId.h"

namespace {

class SimProjectId : public sim::Control<android::IProjectId> {
public:
    SimProjectId() : Control("IProjectId", kDefaults) {}

    void setProjectIdByIndex(int projectId) override { call(__func__, projectId); }
    int getProjectIdIndex() override { return call<int>(__func__); }
    bool getEyePqFixedEnable() override { return call<bool>(__func__); }
    android::String16 getEyePqFixedValue() override { return call<android::String16>(__func__); }

private:
    static constexpr const char* kDefaults = R"({
        "getProjectIdIndex": 3,
        "getEyePqFixedEnable": true,
        "getEyePqFixedValue": "50"
    })";
};

}  // namespace

template <>
android::IProjectId* sim::make<android::IProjectId>() {
    return new SimProjectId;
}
