#pragma once

// The values of the service's C++ types as JSON, both ways: toJson() for what crosses the
// interface (a call's arguments and its answer), read() for an answer a backend gives from a
// profile, with a line for whatever in it does not fit the type.

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <iterator>
#include <limits>
#include <string>
#include <type_traits>
#include <vector>

#include <json/value.h>
#include <utils/String16.h>
#include <utils/String8.h>

#include "adaptor/Json.h"

namespace adaptor __attribute__((visibility("hidden"))) {

// A record's fields, in order: each(record, f) calls f("name", record.name) for each. Written
// for every record of the service by the generator.
template <typename T>
struct Fields;

// An out-parameter, an array the service fills, an array it reads: how an adaptor hands them to
// the mechanism beside the in-arguments, which it hands as they are.
template <typename T>
struct Out {
    T& ref;
};
template <typename T>
struct OutArray {
    T* data;
    size_t size;
};
template <typename T>
struct InArray {
    const T* data;
    size_t size;
};
template <typename T>
Out<T> out(T& ref) {
    return {ref};
}
template <typename T>
OutArray<T> outArray(T* data, size_t size) {
    return {data, size};
}
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

// ---- C++ to JSON ----------------------------------------------------------------------------

// A float as the shortest text that reads back as the same float ("0.35", "1"), as a number of
// that text; one that JSON has no number for stays a number here and is spelled when written.
inline Json::Value floatJson(double value, bool single) {
    if (!std::isfinite(value) || (value == 0 && std::signbit(value))) return Json::Value(value);
    char text[32];
    for (int digits = 6; digits <= 17; ++digits) {
        snprintf(text, sizeof text, "%.*g", digits, value);
        if (single ? strtof(text, nullptr) == static_cast<float>(value) : strtod(text, nullptr) == value)
            break;
    }
    char* end = nullptr;
    long long whole = strtoll(text, &end, 10);
    if (*end == '\0' && std::fabs(value) < 1e15) return Json::Value(static_cast<Json::Int64>(whole));
    return Json::Value(strtod(text, nullptr));
}

template <typename T>
Json::Value toJson(const T& value);

template <typename T>
Json::Value elementsJson(const T* data, size_t size) {
    Json::Value array(Json::arrayValue);
    for (size_t i = 0; i < size; ++i) array.append(toJson(data[i]));
    return array;
}

template <typename T>
Json::Value toJson(const T& value) {
    if constexpr (std::is_same_v<T, bool>) {
        return Json::Value(value);
    } else if constexpr (std::is_enum_v<T>) {
        return toJson(static_cast<std::underlying_type_t<T>>(value));
    } else if constexpr (std::is_integral_v<T> && std::is_signed_v<T>) {
        return Json::Value(static_cast<Json::Int64>(value));
    } else if constexpr (std::is_integral_v<T>) {
        return Json::Value(static_cast<Json::UInt64>(value));
    } else if constexpr (std::is_floating_point_v<T>) {
        return floatJson(static_cast<double>(value), std::is_same_v<T, float>);
    } else if constexpr (std::is_same_v<T, std::string>) {
        return Json::Value(value);
    } else if constexpr (std::is_same_v<T, android::String16>) {
        android::String8 utf8(value);
        return Json::Value(std::string(utf8.c_str(), utf8.size()));
    } else if constexpr (std::is_same_v<T, const char*> || std::is_same_v<T, char*>) {
        return value ? Json::Value(value) : Json::Value();
    } else if constexpr (std::is_array_v<T> && std::is_same_v<std::remove_extent_t<T>, char>) {
        size_t length = 0;
        while (length < std::extent_v<T> && value[length] != '\0') ++length;
        return Json::Value(std::string(value, length));
    } else if constexpr (std::is_array_v<T>) {
        return elementsJson(value, std::extent_v<T>);
    } else if constexpr (IsVector<T>::value) {
        return elementsJson(value.data(), value.size());
    } else if constexpr (IsOut<T>::value) {
        return toJson(value.ref);
    } else {
        Json::Value object(Json::objectValue);
        Fields<T>::each(value, [&](const char* name, const auto& field) { object[name] = toJson(field); });
        return object;
    }
}

template <typename T>
Json::Value toJson(const OutArray<T>& array) {
    return elementsJson(array.data, array.size);
}
template <typename T>
Json::Value toJson(const InArray<T>& array) {
    return elementsJson(array.data, array.size);
}

// ---- JSON to C++ ----------------------------------------------------------------------------

// Where an answer stands, for the lines about it: "panel.json: IAudioCtrl.getEQMode", then
// ".field" and "[2]" while descending. A problem goes to `say`.
struct Reader {
    std::string where;
    void (*say)(const std::string& where, const std::string& what, void* to);
    void* to;
    bool failed = false;

    void problem(const std::string& what) {
        failed = true;
        say(where, what, to);
    }
    Reader at(const std::string& suffix) const { return {where + suffix, say, to}; }
};

template <typename T>
void read(Reader& r, const Json::Value& v, T& out);

template <typename T>
void readElements(Reader& r, const Json::Value& v, T* data, size_t size) {
    if (!v.isArray()) return r.problem(std::string("expected an array, got ") + typeName(v));
    if (v.size() > size) r.problem("more than " + std::to_string(size) + " elements, the rest ignored");
    for (Json::ArrayIndex i = 0; i < v.size() && i < size; ++i) {
        Reader element = r.at("[" + std::to_string(i) + "]");
        read(element, v[i], data[i]);
        r.failed = r.failed || element.failed;
    }
}

template <typename T>
void readInteger(Reader& r, const Json::Value& v, T& out) {
    using Limits = std::numeric_limits<T>;
    if (v.type() != Json::intValue && v.type() != Json::uintValue)
        return r.problem(std::string("expected an integer, got ") + typeName(v));
    if constexpr (std::is_signed_v<T>) {
        if (v.isInt64() && v.asInt64() >= static_cast<Json::Int64>(Limits::min()) &&
            v.asInt64() <= static_cast<Json::Int64>(Limits::max()))
            return void(out = static_cast<T>(v.asInt64()));
    } else {
        if (v.isUInt64() && v.asUInt64() <= static_cast<Json::UInt64>(Limits::max()))
            return void(out = static_cast<T>(v.asUInt64()));
    }
    r.problem("integer out of range");
}

inline bool readFloat(Reader& r, const Json::Value& v, double& out) {
    if (v.isString()) {
        const std::string spelled = v.asString();
        if (spelled == "inf" || spelled == "-inf" || spelled == "nan") {
            out = spelled == "nan" ? std::nan("") : spelled[0] == '-' ? -HUGE_VAL : HUGE_VAL;
            return true;
        }
    }
    if (v.isNumeric()) return out = v.asDouble(), true;
    r.problem(std::string("expected a number, got ") + typeName(v));
    return false;
}

template <typename T>
void read(Reader& r, const Json::Value& v, T& out) {
    if constexpr (std::is_same_v<T, bool>) {
        if (!v.isBool()) return r.problem(std::string("expected true or false, got ") + typeName(v));
        out = v.asBool();
    } else if constexpr (std::is_enum_v<T>) {
        std::underlying_type_t<T> n{};
        readInteger(r, v, n);
        out = static_cast<T>(n);
    } else if constexpr (std::is_integral_v<T>) {
        readInteger(r, v, out);
    } else if constexpr (std::is_floating_point_v<T>) {
        double number;
        if (readFloat(r, v, number)) out = static_cast<T>(number);
    } else if constexpr (std::is_same_v<T, std::string> || std::is_same_v<T, android::String16>) {
        if (!v.isString()) return r.problem(std::string("expected a string, got ") + typeName(v));
        const std::string text = v.asString();
        out = T(text.data(), text.size());
    } else if constexpr (std::is_array_v<T> && std::is_same_v<std::remove_extent_t<T>, char>) {
        // A text of fixed width: it must leave room for its zero.
        if (!v.isString()) return r.problem(std::string("expected a string, got ") + typeName(v));
        const std::string text = v.asString();
        if (text.size() >= std::extent_v<T>)
            return r.problem("text longer than " + std::to_string(std::extent_v<T> - 1) + " bytes");
        std::fill(std::begin(out), std::end(out), '\0');
        std::copy(text.begin(), text.end(), out);
    } else if constexpr (std::is_array_v<T>) {
        readElements(r, v, out, std::extent_v<T>);
    } else if constexpr (IsVector<T>::value) {
        if (!v.isArray()) return r.problem(std::string("expected an array, got ") + typeName(v));
        out.assign(v.size(), typename T::value_type{});
        for (Json::ArrayIndex i = 0; i < v.size(); ++i) {
            Reader element = r.at("[" + std::to_string(i) + "]");
            typename T::value_type value{};
            read(element, v[i], value);
            out[i] = std::move(value);
            r.failed = r.failed || element.failed;
        }
    } else {
        if (!v.isObject()) return r.problem(std::string("expected an object, got ") + typeName(v));
        Fields<T>::each(out, [&](const char* name, auto& field) {
            if (!v.isMember(name)) return;
            Reader member = r.at(std::string(".") + name);
            read(member, v[name], field);
            r.failed = r.failed || member.failed;
        });
    }
}

}  // namespace adaptor
