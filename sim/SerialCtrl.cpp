#include "Panel.h"
#include "service/ISerialCtrl.h"

namespace {

class SimSerialCtrl : public sim::Control<android::ISerialCtrl> {
public:
    SimSerialCtrl() : Control("ISerialCtrl", kDefaults) {}

    void SetSerialSwitch(int device, bool enable, int baudrate) override {
        call(__func__, device, enable, baudrate);
    }
    int getRS232Baudrate() override { return call<int>(__func__); }
    int getRS232Port() override { return call<int>(__func__); }
    void setSerialDeviceId(int device, int id) override { call(__func__, device, id); }
    int getSerialDeviceId(int device) override { return call<int>(__func__, device); }

private:
    static constexpr const char* kDefaults = R"({
        "getRS232Baudrate": 115200,
        "getRS232Port": 1,
        "getSerialDeviceId": 3
    })";
};

}  // namespace

template <>
android::ISerialCtrl* sim::make<android::ISerialCtrl>() {
    return new SimSerialCtrl;
}
