#pragma once

// Bodies for the commonest row: call one operation without arguments and print a label, its
// result and a newline. For use with ListCommand::add:
//
//     add("u", "getDspUsbEnable", kNone, mAvManagerCtrl,
//         printTrueFalse("getDspUsbEnable: ", &IAvManagerCtrl::getDspUsbEnable));
//
// The option's argument, if any, is not looked at.

#include <iostream>
#include <type_traits>

#include <utils/String16.h>
#include <utils/String8.h>

#include "Command.h"
#include "Input.h"

namespace android {
namespace dumpbrel {

// One result as the tables print it: a number in decimal (one-byte integers too), a bool as
// 1 or 0 (the stream's default), a String16 as its UTF-8 text.
template <typename T>
void printValue(const T& value) {
    if constexpr (std::is_same_v<T, String16>)
        std::cout << String8(value).c_str();
    else if constexpr (std::is_integral_v<T> && !std::is_same_v<T, bool> && sizeof(T) == 1)
        std::cout << static_cast<int>(value);
    else
        std::cout << value;
}

// `label`, the result of `op` and a newline.
template <typename I, typename R>
auto printResult(const char* label, R (I::*op)()) {
    return [label, op](I& iface, const Input&) -> Status {
        R result = (iface.*op)();
        std::cout << label;
        printValue(result);
        std::cout << '\n';
        return OK;
    };
}

// `label`, "true" or "false" by the result of `op`, and a newline.
template <typename I>
auto printTrueFalse(const char* label, bool (I::*op)()) {
    return [label, op](I& iface, const Input&) -> Status {
        std::cout << label << trueFalse((iface.*op)()) << '\n';
        return OK;
    };
}

}  // namespace dumpbrel
}  // namespace android
