#include "Panel.h"
#include "service/IGpioCtrl.h"

namespace {

class SimGpioCtrl : public sim::Control<android::IGpioCtrl> {
public:
    SimGpioCtrl() : Control("IGpioCtrl", kDefaults) {}

    int setGpioDirInput(unsigned int gpio_no) override { return call<int>(__func__, gpio_no); }
    int setGpioDirOutput(unsigned int gpio_no) override { return call<int>(__func__, gpio_no); }
    int getGpioDirBit(unsigned int gpio_no, int& is_input) override {
        return call<int>(__func__, gpio_no, sim::out("is_input", is_input));
    }
    int writeGpioBit(unsigned int gpio_no, int high_volt) override {
        return call<int>(__func__, gpio_no, high_volt);
    }
    int readGpioBit(unsigned int gpio_no, int& high_volt) override {
        return call<int>(__func__, gpio_no, sim::out("high_volt", high_volt));
    }
    int readGpioOutBit(unsigned int gpio_no, int& high_volt) override {
        return call<int>(__func__, gpio_no, sim::out("high_volt", high_volt));
    }

private:
    // Every line an input at high level; the output latch low.
    static constexpr const char* kDefaults = R"({
        "setGpioDirInput": 0,
        "setGpioDirOutput": 0,
        "getGpioDirBit": {"result": 0, "is_input": 1},
        "writeGpioBit": 0,
        "readGpioBit": {"result": 0, "high_volt": 1},
        "readGpioOutBit": {"result": 0, "high_volt": 0}
    })";
};

}  // namespace

template <>
android::IGpioCtrl* sim::make<android::IGpioCtrl>() {
    return new SimGpioCtrl;
}
