#include "Controls.h"
#include "Panel.h"

namespace {

class SimTeaDspCtrl : public sim::Control<android::ITeaDspCtrl> {
public:
    SimTeaDspCtrl() : Control("ITeaDspCtrl", kDefaults) {}

private:
    static constexpr const char* kDefaults = R"({})";
};

}  // namespace

android::ITeaDspCtrl* sim::newTeaDspCtrl() {
    return new SimTeaDspCtrl;
}
