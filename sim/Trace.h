#pragma once

// What writes a call's trace line, and the JSON text of every type at the service's interfaces:
// the simulated panel's trace and profiles, and the recorder's (record/), from one definition.
// A value's JSON text is what a profile holds for it and what the trace writes for it.

#include <cstddef>
#include <cstdio>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

#include <utils/String16.h>
#include <utils/String8.h>

namespace sim __attribute__((visibility("hidden"))) {

// JSON text of a string as the trace writes it: only '"', '\\' and control bytes escaped,
// UTF-8 kept, a byte that is not valid UTF-8 written as U+FFFD.
std::string jsonString(std::string_view text);

// A record's fields, in order: SIM_RECORD(android::TouchPoint, point_id, point_x, point_y).
template <typename T>
struct Record;

// An out-parameter: named as in the profile, filled from it, never traced.
template <typename T>
struct Out {
    const char* name;
    T& ref;
};
template <typename T>
Out<T> out(const char* name, T& ref) {
    return {name, ref};
}

// A fixed-size array that the service fills: the profile's JSON array fills the first entries.
template <typename T>
struct OutArray {
    const char* name;
    T* data;
    size_t size;
};
template <typename T, size_t N>
OutArray<T> outArray(const char* name, T (&data)[N]) {
    return {name, data, N};
}
template <typename T>
OutArray<T> outArray(const char* name, T* data, size_t size) {
    return {name, data, size};
}

// A fixed-size array that the service reads: traced whole, whatever length goes with it.
template <typename T>
struct InArray {
    const T* data;
    size_t size;
};
template <typename T>
InArray<T> inArray(const T* data, size_t size) {
    return {data, size};
}

template <typename T>
struct IsOut : std::false_type {};
template <typename T>
struct IsOut<Out<T>> : std::true_type {};
template <typename T>
struct IsOut<OutArray<T>> : std::true_type {};

template <typename T>
struct IsOutArray : std::false_type {};
template <typename T>
struct IsOutArray<OutArray<T>> : std::true_type {};

template <typename T>
struct IsVector : std::false_type {};
template <typename T, typename A>
struct IsVector<std::vector<T, A>> : std::true_type {};

// ---- C++ to trace text --------------------------------------------------------------------

template <typename T>
void write(std::string& line, const T& value);

template <typename T>
void writeElements(std::string& line, const T* data, size_t size) {
    line += '[';
    for (size_t i = 0; i < size; ++i) {
        if (i) line += ", ";
        write(line, data[i]);
    }
    line += ']';
}

template <typename T>
void write(std::string& line, const T& value) {
    if constexpr (std::is_same_v<T, bool>) {
        line += value ? "true" : "false";
    } else if constexpr (std::is_enum_v<T>) {
        line += std::to_string(static_cast<long long>(value));
    } else if constexpr (std::is_integral_v<T>) {
        line += std::to_string(value);
    } else if constexpr (std::is_floating_point_v<T>) {
        char text[64];
        snprintf(text, sizeof text, "%g", static_cast<double>(value));
        line += text;
    } else if constexpr (std::is_same_v<T, std::string>) {
        line += jsonString(value);
    } else if constexpr (std::is_same_v<T, android::String16>) {
        android::String8 utf8(value);
        line += jsonString(std::string_view(utf8.c_str(), utf8.size()));
    } else if constexpr (std::is_same_v<T, const char*> || std::is_same_v<T, char*>) {
        line += value ? jsonString(value) : std::string("null");
    } else if constexpr (std::is_array_v<T> && std::is_same_v<std::remove_extent_t<T>, char>) {
        size_t length = 0;
        while (length < std::extent_v<T> && value[length] != '\0') ++length;
        line += jsonString(std::string_view(value, length));
    } else if constexpr (std::is_array_v<T>) {
        writeElements(line, value, std::extent_v<T>);
    } else if constexpr (IsVector<T>::value) {
        writeElements(line, value.data(), value.size());
    } else {
        line += '{';
        bool first = true;
        Record<T>::each(const_cast<T&>(value), [&](const char* name, auto& field) {
            if (!first) line += ", ";
            first = false;
            line += '"';
            line += name;
            line += "\": ";
            write(line, field);
        });
        line += '}';
    }
}

template <typename T>
void write(std::string& line, const InArray<T>& array) {
    writeElements(line, array.data, array.size);
}

template <typename T>
void traceArgument(std::string& line, size_t& last, const T& argument) {
    if constexpr (!IsOut<T>::value) {
        if (last) line += ", ";
        last = line.size();
        write(line, argument);
    }
}

// The trace line of a call without its answer: "IName.op(in-arguments)", out-parameters left out;
// `last` becomes where the last in-argument begins, 0 when there is none.
template <typename... A>
std::string callLine(const char* iface, const char* op, size_t& last, const A&... args) {
    std::string line = std::string(iface) + "." + op + "(";
    last = 0;
    (traceArgument(line, last, args), ...);
    return line + ")";
}

}  // namespace sim

// Field list of a record for the profile and the trace, in the record's order.
#define SIM_RECORD_FIELD(field) f(#field, r.field);
#define SIM_RECORD(Type, ...)                                          \
    template <>                                                        \
    struct sim::Record<Type> {                                         \
        template <typename F>                                          \
        static void each(Type& r, F&& f) {                             \
            SIM_FOR_EACH(SIM_RECORD_FIELD, __VA_ARGS__)                \
        }                                                              \
    }

// SIM_FOR_EACH(M, a, b, c) is M(a) M(b) M(c), for up to 32 arguments.
#define SIM_EXPAND(x) x
#define SIM_FE_1(M, x) M(x)
#define SIM_FE_2(M, x, ...) M(x) SIM_EXPAND(SIM_FE_1(M, __VA_ARGS__))
#define SIM_FE_3(M, x, ...) M(x) SIM_EXPAND(SIM_FE_2(M, __VA_ARGS__))
#define SIM_FE_4(M, x, ...) M(x) SIM_EXPAND(SIM_FE_3(M, __VA_ARGS__))
#define SIM_FE_5(M, x, ...) M(x) SIM_EXPAND(SIM_FE_4(M, __VA_ARGS__))
#define SIM_FE_6(M, x, ...) M(x) SIM_EXPAND(SIM_FE_5(M, __VA_ARGS__))
#define SIM_FE_7(M, x, ...) M(x) SIM_EXPAND(SIM_FE_6(M, __VA_ARGS__))
#define SIM_FE_8(M, x, ...) M(x) SIM_EXPAND(SIM_FE_7(M, __VA_ARGS__))
#define SIM_FE_9(M, x, ...) M(x) SIM_EXPAND(SIM_FE_8(M, __VA_ARGS__))
#define SIM_FE_10(M, x, ...) M(x) SIM_EXPAND(SIM_FE_9(M, __VA_ARGS__))
#define SIM_FE_11(M, x, ...) M(x) SIM_EXPAND(SIM_FE_10(M, __VA_ARGS__))
#define SIM_FE_12(M, x, ...) M(x) SIM_EXPAND(SIM_FE_11(M, __VA_ARGS__))
#define SIM_FE_13(M, x, ...) M(x) SIM_EXPAND(SIM_FE_12(M, __VA_ARGS__))
#define SIM_FE_14(M, x, ...) M(x) SIM_EXPAND(SIM_FE_13(M, __VA_ARGS__))
#define SIM_FE_15(M, x, ...) M(x) SIM_EXPAND(SIM_FE_14(M, __VA_ARGS__))
#define SIM_FE_16(M, x, ...) M(x) SIM_EXPAND(SIM_FE_15(M, __VA_ARGS__))
#define SIM_FE_17(M, x, ...) M(x) SIM_EXPAND(SIM_FE_16(M, __VA_ARGS__))
#define SIM_FE_18(M, x, ...) M(x) SIM_EXPAND(SIM_FE_17(M, __VA_ARGS__))
#define SIM_FE_19(M, x, ...) M(x) SIM_EXPAND(SIM_FE_18(M, __VA_ARGS__))
#define SIM_FE_20(M, x, ...) M(x) SIM_EXPAND(SIM_FE_19(M, __VA_ARGS__))
#define SIM_FE_21(M, x, ...) M(x) SIM_EXPAND(SIM_FE_20(M, __VA_ARGS__))
#define SIM_FE_22(M, x, ...) M(x) SIM_EXPAND(SIM_FE_21(M, __VA_ARGS__))
#define SIM_FE_23(M, x, ...) M(x) SIM_EXPAND(SIM_FE_22(M, __VA_ARGS__))
#define SIM_FE_24(M, x, ...) M(x) SIM_EXPAND(SIM_FE_23(M, __VA_ARGS__))
#define SIM_FE_25(M, x, ...) M(x) SIM_EXPAND(SIM_FE_24(M, __VA_ARGS__))
#define SIM_FE_26(M, x, ...) M(x) SIM_EXPAND(SIM_FE_25(M, __VA_ARGS__))
#define SIM_FE_27(M, x, ...) M(x) SIM_EXPAND(SIM_FE_26(M, __VA_ARGS__))
#define SIM_FE_28(M, x, ...) M(x) SIM_EXPAND(SIM_FE_27(M, __VA_ARGS__))
#define SIM_FE_29(M, x, ...) M(x) SIM_EXPAND(SIM_FE_28(M, __VA_ARGS__))
#define SIM_FE_30(M, x, ...) M(x) SIM_EXPAND(SIM_FE_29(M, __VA_ARGS__))
#define SIM_FE_31(M, x, ...) M(x) SIM_EXPAND(SIM_FE_30(M, __VA_ARGS__))
#define SIM_FE_32(M, x, ...) M(x) SIM_EXPAND(SIM_FE_31(M, __VA_ARGS__))
#define SIM_FE_PICK(_1, _2, _3, _4, _5, _6, _7, _8, _9, _10, _11, _12, _13, _14, _15, _16, _17, \
                    _18, _19, _20, _21, _22, _23, _24, _25, _26, _27, _28, _29, _30, _31, _32,  \
                    NAME, ...)                                                                  \
    NAME
#define SIM_FOR_EACH(M, ...)                                                                   \
    SIM_EXPAND(SIM_FE_PICK(__VA_ARGS__, SIM_FE_32, SIM_FE_31, SIM_FE_30, SIM_FE_29, SIM_FE_28, \
                           SIM_FE_27, SIM_FE_26, SIM_FE_25, SIM_FE_24, SIM_FE_23, SIM_FE_22,   \
                           SIM_FE_21, SIM_FE_20, SIM_FE_19, SIM_FE_18, SIM_FE_17, SIM_FE_16,   \
                           SIM_FE_15, SIM_FE_14, SIM_FE_13, SIM_FE_12, SIM_FE_11, SIM_FE_10,   \
                           SIM_FE_9, SIM_FE_8, SIM_FE_7, SIM_FE_6, SIM_FE_5, SIM_FE_4,         \
                           SIM_FE_3, SIM_FE_2, SIM_FE_1)(M, __VA_ARGS__))
