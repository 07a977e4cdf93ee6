#include "Panel.h"
#include "service/IVgaAdjust.h"

namespace {

class SimVgaAdjust : public sim::Control<android::IVgaAdjust> {
public:
    SimVgaAdjust() : Control("IVgaAdjust", kDefaults) {}

    int setvgaAdjustData(int type, int val) override { return call<int>(__func__, type, val); }
    int getvgaAdjustData(int type) override { return call<int>(__func__, type); }

private:
    static constexpr const char* kDefaults = R"({"setvgaAdjustData": 0, "getvgaAdjustData": 0})";
};

}  // namespace

template <>
android::IVgaAdjust* sim::make<android::IVgaAdjust>() {
    return new SimVgaAdjust;
}
