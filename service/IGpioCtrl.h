#pragma once

#include <utils/RefBase.h>

namespace android {

// The board's general-purpose I/O lines. Every operation answers a status.
class IGpioCtrl : public RefBase {
public:
    virtual int setGpioDirInput(unsigned int gpio_no) = 0;
    virtual int setGpioDirOutput(unsigned int gpio_no) = 0;
    virtual int getGpioDirBit(unsigned int gpio_no, int& is_input) = 0;
    virtual int writeGpioBit(unsigned int gpio_no, int high_volt) = 0;
    virtual int readGpioBit(unsigned int gpio_no, int& high_volt) = 0;
    virtual int readGpioOutBit(unsigned int gpio_no, int& high_volt) = 0;

protected:
    ~IGpioCtrl() override = default;
};

}  // namespace android
