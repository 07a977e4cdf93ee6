#include "Controls.h"
#include "Panel.h"

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

android::IProjectId* sim::newProjectId() {
    return new SimProjectId;
}
