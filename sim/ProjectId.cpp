#include "Controls.h"
#include "Panel.h"

namespace {

class SimProjectId : public sim::Control<android::IProjectId> {
public:
    SimProjectId() : Control("IProjectId", kDefaults) {}

private:
    static constexpr const char* kDefaults = R"({})";
};

}  // namespace

android::IProjectId* sim::newProjectId() {
    return new SimProjectId;
}
