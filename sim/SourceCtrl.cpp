#include "Controls.h"
#include "Panel.h"

namespace {

class SimSourceCtrl : public sim::Control<android::ISourceCtrl> {
public:
    SimSourceCtrl() : Control("ISourceCtrl", kDefaults) {}

private:
    static constexpr const char* kDefaults = R"({})";
};

}  // namespace

android::ISourceCtrl* sim::newSourceCtrl() {
    return new SimSourceCtrl;
}
