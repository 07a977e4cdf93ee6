#include "Panel.h"
#include "service/IKeyboardCtrl.h"

namespace {

using android::String16;

class SimKeyboardCtrl : public sim::Control<android::IKeyboardCtrl> {
public:
    SimKeyboardCtrl() : Control("IKeyboardCtrl", kDefaults) {}

    bool getKeyboardByName(const String16& name) override { return call<bool>(__func__, name); }
    bool getKeyboardByID(int vid, int pid) override { return call<bool>(__func__, vid, pid); }

private:
    static constexpr const char* kDefaults =
            R"({"getKeyboardByName": true, "getKeyboardByID": true})";
};

}  // namespace

template <>
android::IKeyboardCtrl* sim::make<android::IKeyboardCtrl>() {
    return new SimKeyboardCtrl;
}
