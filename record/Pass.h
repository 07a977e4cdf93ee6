#pragma once

// The recorder's one mechanism. Every operation of every interface passes through one line,
// written from the service's declarations (record/forward.cmake):
//
//     int getGpioDirBit(unsigned int gpio_no, int& is_input) override
//         { return pass(__func__, &IGpioCtrl::getGpioDirBit, gpio_no, sim::out("is_input", is_input)); }
//
// pass() calls the library's own operation with the same arguments, hands its answer back
// untouched, and tells the recorder the call's trace line and its answer as a profile holds it.

#include <type_traits>
#include <utility>

#include <utils/RefBase.h>

#include "Recorder.h"
#include "sim/Records.h"

namespace record __attribute__((visibility("hidden"))) {

// What the library's operation takes for each argument of pass().
template <typename T>
T& raw(const sim::Out<T>& out) {
    return out.ref;
}
template <typename T>
T* raw(const sim::OutArray<T>& array) {
    return array.data;
}
template <typename T>
const T* raw(const sim::InArray<T>& array) {
    return array.data;
}
template <typename T>
const T& raw(const T& value) {
    return value;
}

// `, "name": value` for an out-parameter, as the library left it.
template <typename T>
void outMember(std::string& text, const T& argument) {
    if constexpr (sim::IsOut<T>::value) {
        text += text.size() > 1 ? ", \"" : "\"";
        text += argument.name;
        text += "\": ";
        if constexpr (sim::IsOutArray<T>::value)
            sim::writeElements(text, argument.data, argument.size);
        else
            sim::write(text, argument.ref);
    }
}

template <typename I>
class Pass : public I {
public:
    Pass(const char* name, I* real) : mName(name), mReal(real) {}

protected:
    template <typename F, typename... A>
    auto pass(const char* op, F fn, const A&... args) {
        size_t last;
        std::string line = sim::callLine(mName, op, last, args...);
        using R = decltype((std::declval<I*>()->*fn)(raw(args)...));
        constexpr bool outs = (sim::IsOut<A>::value || ...);
        std::string answer = outs ? "{" : "";
        if constexpr (std::is_void_v<R>) {
            (mReal.get()->*fn)(raw(args)...);
            (outMember(answer, args), ...);
            if (outs) answer += "}";
            answered(mName, op, line, last, "", answer);
        } else {
            R result = (mReal.get()->*fn)(raw(args)...);
            std::string text;
            sim::write(text, result);
            if (outs) answer += "\"result\": " + text;
            (outMember(answer, args), ...);
            answer += outs ? "}" : text;
            answered(mName, op, line, last, text, answer);
            return result;
        }
    }

private:
    const char* mName;
    android::sp<I> mReal;
};

}  // namespace record
