#include "Controls.h"
#include "Panel.h"

namespace {

class SimKeyboardCtrl : public sim::Control<android::IKeyboardCtrl> {
public:
    SimKeyboardCtrl() : Control("IKeyboardCtrl", kDefaults) {}

private:
    static constexpr const char* kDefaults = R"({})";
};

}  // namespace

android::IKeyboardCtrl* sim::newKeyboardCtrl() {
    return new SimKeyboardCtrl;
}
