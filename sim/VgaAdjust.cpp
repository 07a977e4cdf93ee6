#include "Controls.h"
#include "Panel.h"

namespace {

class SimVgaAdjust : public sim::Control<android::IVgaAdjust> {
public:
    SimVgaAdjust() : Control("IVgaAdjust", kDefaults) {}

private:
    static constexpr const char* kDefaults = R"({})";
};

}  // namespace

android::IVgaAdjust* sim::newVgaAdjust() {
    return new SimVgaAdjust;
}
