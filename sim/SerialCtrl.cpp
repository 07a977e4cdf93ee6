#include "Controls.h"
#include "Panel.h"

namespace {

class SimSerialCtrl : public sim::Control<android::ISerialCtrl> {
public:
    SimSerialCtrl() : Control("ISerialCtrl", kDefaults) {}

private:
    static constexpr const char* kDefaults = R"({})";
};

}  // namespace

android::ISerialCtrl* sim::newSerialCtrl() {
    return new SimSerialCtrl;
}
