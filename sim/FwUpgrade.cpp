#include "Controls.h"
#include "Panel.h"

namespace {

class SimFwUpgrade : public sim::Control<android::IFwUpgrade> {
public:
    SimFwUpgrade() : Control("IFwUpgrade", kDefaults) {}

private:
    static constexpr const char* kDefaults = R"({})";
};

}  // namespace

android::IFwUpgrade* sim::newFwUpgrade() {
    return new SimFwUpgrade;
}
