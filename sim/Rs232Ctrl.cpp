#include "Controls.h"
#include "Panel.h"

namespace {

class SimRs232Ctrl : public sim::Control<android::IRs232Ctrl> {
public:
    SimRs232Ctrl() : Control("IRs232Ctrl", kDefaults) {}

private:
    static constexpr const char* kDefaults = R"({})";
};

}  // namespace

android::IRs232Ctrl* sim::newRs232Ctrl() {
    return new SimRs232Ctrl;
}
