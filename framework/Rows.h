#pragma once

// Row shapes: bodies for ListCommand::add that more than one sub-service uses, each named after
// what it prints. A shape that reads the option's argument says how in its name:
//   Atoi  atoi on the whole text, no refusal (text that is no number reads as 0);
//   Stoi  Input::toInt, std::stoi's rules, refused with Input's one line;
//   Text  the text echoed as typed (and read with atoi for the call).
// The argument goes to the operation as its parameter type: a bool is "the number is not 0".
// A shape that reads the argument returns USAGE, calling nothing, when there is none.
//
//     add("x", "getPQRGain", kNone, mPQCtrl, printResult("Got R Gain: ", &IPQCtrl::getPQRGain));
//     add("r:", "setPQRGain", kRequired, mPQCtrl,
//         printTextAndResult("Set R Gain: ", &IPQCtrl::setPQRGain));

#include <cstdlib>
#include <iostream>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

#include <utils/String16.h>
#include <utils/String8.h>

#include "Command.h"
#include "Input.h"

namespace android {
namespace dumpbrel {

// The words the tables print for a bool or a status.
inline const char* trueFalse(bool value) { return value ? "true" : "false"; }
inline const char* enableDisable(bool on) { return on ? "enable" : "disable"; }
inline const char* successFail(bool ok) { return ok ? "success" : "fail"; }
inline const char* failOrSuccess(int status) { return status != 0 ? "fail" : "success"; }
inline const char* oneOrZero(int status) { return status != 0 ? "1" : "0"; }

// One value as the tables print it: a number in decimal (one-byte integers too), a bool as
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

// `value`, or the word `words` gives for it when there is one.
template <typename T>
void printValue(const T& value, const char* (*words)(T)) {
    if (words != nullptr)
        std::cout << words(value);
    else
        printValue(value);
}

// Each string of `lines` on a line of its own behind `label`; an empty list prints nothing.
inline void printLines(const std::vector<std::string>& lines, std::string_view label = {}) {
    for (const auto& line : lines) std::cout << label << line << '\n';
}

// `label`, the result of `op` (or its word) and a newline. The argument is not looked at.
template <typename I, typename R>
auto printResult(const char* label, R (I::*op)(), const char* (*words)(R) = nullptr) {
    return [label, op, words](I& iface, const Input&) -> Status {
        R result = (iface.*op)();
        std::cout << label;
        printValue(result, words);
        std::cout << '\n';
        return OK;
    };
}

// Calls `op` and prints `line` and a newline, whatever it answered.
template <typename I, typename R>
auto printWhenDone(const char* line, R (I::*op)()) {
    return [line, op](I& iface, const Input&) -> Status {
        (iface.*op)();
        std::cout << line << '\n';
        return OK;
    };
}

// A row that insists on an argument it then does not read: USAGE without one, else `body`.
template <typename Body>
auto needsArgument(Body body) {
    return [body](auto& iface, const Input& in) -> Status {
        if (in.missing()) return USAGE;
        return body(iface, in);
    };
}

// The whole argument read with atoi as a parameter of type P.
template <typename P>
P fromAtoi(const char* text) {
    if constexpr (std::is_same_v<P, bool>)
        return atoi(text) != 0;
    else
        return static_cast<P>(atoi(text));
}

// `label`, the argument read with atoi (or its word), and a newline; the operation's answer,
// if any, is not printed.
template <typename I, typename R, typename P>
auto printAtoi(const char* label, R (I::*op)(P), const char* (*words)(P) = nullptr) {
    return [label, op, words](I& iface, const Input& in) -> Status {
        if (in.missing()) return USAGE;
        P arg = fromAtoi<P>(in.text);
        (iface.*op)(arg);
        std::cout << label;
        printValue(arg, words);
        std::cout << '\n';
        return OK;
    };
}

// `label`, the result (or its word) of the call with the argument read with atoi, and a
// newline; the argument itself is not printed.
template <typename I, typename R, typename P>
auto printResultForAtoi(const char* label, R (I::*op)(P), const char* (*words)(R) = nullptr) {
    return [label, op, words](I& iface, const Input& in) -> Status {
        if (in.missing()) return USAGE;
        R result = (iface.*op)(fromAtoi<P>(in.text));
        std::cout << label;
        printValue(result, words);
        std::cout << '\n';
        return OK;
    };
}

// The same with the argument read by Input::toInt.
template <typename I, typename R>
auto printResultForStoi(const char* label, R (I::*op)(int), const char* (*words)(R) = nullptr) {
    return [label, op, words](I& iface, const Input& in) -> Status {
        int arg = 0;
        if (!in.toInt(arg)) return USAGE;
        R result = (iface.*op)(arg);
        std::cout << label;
        printValue(result, words);
        std::cout << '\n';
        return OK;
    };
}

// `label`, the argument read with atoi, `middle`, the result (or its word) and a newline.
template <typename I, typename R, typename P>
auto printAtoiAndResult(const char* label, R (I::*op)(P), const char* middle = ", ret = ",
                        const char* (*words)(R) = nullptr) {
    return [label, op, middle, words](I& iface, const Input& in) -> Status {
        if (in.missing()) return USAGE;
        P arg = fromAtoi<P>(in.text);
        R result = (iface.*op)(arg);
        std::cout << label << arg << middle;
        printValue(result, words);
        std::cout << '\n';
        return OK;
    };
}

// `label`, the argument read by Input::toInt, `middle`, the result and a newline.
template <typename I, typename R>
auto printStoiAndResult(const char* label, R (I::*op)(int), const char* middle = ", ret = ") {
    return [label, op, middle](I& iface, const Input& in) -> Status {
        int arg = 0;
        if (!in.toInt(arg)) return USAGE;
        R result = (iface.*op)(arg);
        std::cout << label << arg << middle;
        printValue(result);
        std::cout << '\n';
        return OK;
    };
}

// `label`, the argument as typed, and a newline; the call gets its atoi number and its answer,
// if any, is not printed.
template <typename I, typename R, typename P>
auto printText(const char* label, R (I::*op)(P)) {
    return [label, op](I& iface, const Input& in) -> Status {
        if (in.missing()) return USAGE;
        (iface.*op)(fromAtoi<P>(in.text));
        std::cout << label << in.text << '\n';
        return OK;
    };
}

// `label`, the argument as typed, `middle`, the result of the call with its atoi number, and a
// newline.
template <typename I, typename R, typename P>
auto printTextAndResult(const char* label, R (I::*op)(P), const char* middle = ", ret = ") {
    return [label, op, middle](I& iface, const Input& in) -> Status {
        if (in.missing()) return USAGE;
        R result = (iface.*op)(fromAtoi<P>(in.text));
        std::cout << label << in.text << middle;
        printValue(result);
        std::cout << '\n';
        return OK;
    };
}

}  // namespace dumpbrel
}  // namespace android
