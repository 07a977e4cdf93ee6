#include <iostream>
#include <memory>
#include <sstream>
#include <string>

#include "framework/ListCommand.h"
#include "service/IGpioCtrl.h"

namespace android {
namespace dumpbrel {

class GpioCtrlCommand : public ListCommand {
public:
    explicit GpioCtrlCommand(DumpBrel& parent);
    std::string getName() const override { return mName; }
    std::string getSimpleDescription() const override { return "GpioCtrl Module"; }
    Status registerAllOptions() override;

private:
    std::string mName;
    sp<IGpioCtrl> mGpioCtrl;
};

namespace {

// A line number is read as unsigned long, of which the low 32 bits count; seen as a signed
// number they must not be negative.
bool negative(unsigned int gpio_no) {
    if (static_cast<int>(gpio_no) >= 0) return false;
    std::cout << "gpio_no is negative: " << static_cast<int>(gpio_no) << "\n";
    return true;
}

// The one number of a row: the first comma field, read as line number. Prints the refusal
// and gives false when the row must not call the service.
bool lineNumber(const Input& in, unsigned int& gpio_no) {
    std::istringstream stream(in.text);
    std::string field;
    if (!std::getline(stream, field, ',')) {
        std::cout << "Failed to parse input string\n";
        return false;
    }
    unsigned long number = 0;
    if (!in.toULong(field, number)) return false;
    gpio_no = static_cast<unsigned int>(number);
    return !negative(gpio_no);
}

}  // namespace

GpioCtrlCommand::GpioCtrlCommand(DumpBrel& parent)
    : ListCommand(parent),
      mName("GpioCtrl"),
      mGpioCtrl(connect(&IBrelManager::getGpioCtrl, "getGpioCtrl() fail\n")) {}

Status GpioCtrlCommand::registerAllOptions() {
    addHelp();
    add("i:", "setGpioDirInput", kRequired, mGpioCtrl,
        [](IGpioCtrl& gpio, const Input& in) {
            unsigned int gpio_no = 0;
            if (in.missing() || !lineNumber(in, gpio_no)) return USAGE;
            int ret = gpio.setGpioDirInput(gpio_no);
            std::cout << "setGpioDirInput= " << gpio_no << " ret= " << ret << "\n";
            return OK;
        },
        "unsigned int");
    add("o:", "setGpioDirOutput", kRequired, mGpioCtrl,
        [](IGpioCtrl& gpio, const Input& in) {
            unsigned int gpio_no = 0;
            if (in.missing() || !lineNumber(in, gpio_no)) return USAGE;
            int ret = gpio.setGpioDirOutput(gpio_no);
            std::cout << "setGpioDirOutput= " << gpio_no << " ret= " << ret << "\n";
            return OK;
        },
        "unsigned int");
    add("g:", "getGpioDirBit", kRequired, mGpioCtrl,
        [](IGpioCtrl& gpio, const Input& in) {
            unsigned int gpio_no = 0;
            if (in.missing() || !lineNumber(in, gpio_no)) return USAGE;
            int is_input = 0;
            int ret = gpio.getGpioDirBit(gpio_no, is_input);
            std::cout << "getGpioDirBit= " << gpio_no << " is_input= " << is_input
                      << " ret= " << ret << "\n";
            return OK;
        },
        "unsigned int");
    add("w:", "writeGpioBit", kRequired, mGpioCtrl,
        [](IGpioCtrl& gpio, const Input& in) {
            if (in.missing()) return USAGE;
            std::cout << "Input string: " << in.text << "\n";
            // line,level
            std::istringstream stream(in.text);
            std::string gpio_no_str, int_value_str;
            if (!std::getline(stream, gpio_no_str, ',') ||
                !std::getline(stream, int_value_str, ',')) {
                std::cout << "Failed to parse input string\n";
                return USAGE;
            }
            std::cout << "Parsed gpio_no_str: " << gpio_no_str << "\n";
            std::cout << "Parsed int_value_str: " << int_value_str << "\n";
            unsigned long number = 0;
            int high_volt = 0;
            if (!in.toULong(gpio_no_str, number) || !in.toInt(int_value_str, high_volt))
                return USAGE;
            unsigned int gpio_no = static_cast<unsigned int>(number);
            if (negative(gpio_no)) return USAGE;
            int ret = gpio.writeGpioBit(gpio_no, high_volt);
            std::cout << "writeGpioBit= " << gpio_no << " high_volt= " << high_volt
                      << " ret= " << ret << "\n";
            return OK;
        },
        "unsigned int,bool");
    add("r:", "readGpioBit", kRequired, mGpioCtrl,
        [](IGpioCtrl& gpio, const Input& in) {
            unsigned int gpio_no = 0;
            if (in.missing() || !lineNumber(in, gpio_no)) return USAGE;
            int high_volt = 0;
            int ret = gpio.readGpioBit(gpio_no, high_volt);
            std::cout << "readGpioBit= " << gpio_no << " high_volt= " << high_volt
                      << " ret= " << ret << "\n";
            return OK;
        },
        "unsigned int");
    add("ro:", "readGpioOutBit", kRequired, mGpioCtrl,
        [](IGpioCtrl& gpio, const Input& in) {
            unsigned int gpio_no = 0;
            if (in.missing() || !lineNumber(in, gpio_no)) return USAGE;
            int high_volt = 0;
            int ret = gpio.readGpioOutBit(gpio_no, high_volt);
            std::cout << "readGpioOutBit= " << gpio_no << " high_volt= " << high_volt
                      << " ret= " << ret << "\n";
            return OK;
        },
        "unsigned int");
    return OK;
}

std::unique_ptr<ListCommand> newGpioCtrlCommand(DumpBrel& parent) {
    return std::make_unique<GpioCtrlCommand>(parent);
}

}  // namespace dumpbrel
}  // namespace android
