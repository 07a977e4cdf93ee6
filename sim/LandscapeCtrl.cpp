#include "Panel.h"
#include "service/ILandscapeCtrl.h"

namespace {

class SimLandscapeCtrl : public sim::Control<android::ILandscapeCtrl> {
public:
    SimLandscapeCtrl() : Control("ILandscapeCtrl", kDefaults) {}

    void setLandscapeAppList(const std::vector<std::string>& list) override { call(__func__, list); }
    std::vector<std::string> getLandscapeApp() override {
        return call<std::vector<std::string>>(__func__);
    }

private:
    static constexpr const char* kDefaults =
        R"({"getLandscapeApp": ["com.android.browser", "com.android.gallery3d"]})";
};

}  // namespace

template <>
android::ILandscapeCtrl* sim::make<android::ILandscapeCtrl>() {
    return new SimLandscapeCtrl;
}
