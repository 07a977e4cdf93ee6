#pragma once

// The simulated panel's one mechanism. Every simulated operation is one line:
//
//     int setAnionStatus(int status) override { return call<int>(__func__, status); }
//
// call<R>() writes the trace line, finds the scripted value under the interface's and the
// operation's name (with the call's arguments, then without) in the memory (BREL_SIM_STATE) and
// then in the profile in force, converts it to R (records and vectors included), fills the
// out-parameters wrapped in out()/outArray(), and answers neutrally (R{}) for anything neither
// names. A setter that pairs with a getter (kPairs) leaves its value in the memory.

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <iterator>
#include <limits>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

#include <utils/String16.h>
#include <utils/String8.h>

// Hidden: the controls reach the mechanism inside the library, so the dynamic loader has none of
// its symbols to bind when the program starts. Panel alone stays visible (tools reset it).
namespace sim __attribute__((visibility("hidden"))) {

// One value of the profile in force, or nothing. Reads only; the JSON stays inside Panel.cpp.
class Node {
public:
    Node() = default;
    explicit Node(const void* json) : mJson(json) {}

    bool exists() const { return mJson != nullptr; }
    bool isObject() const;
    bool isArray() const;
    bool isString() const;
    bool isBool() const;
    bool isInteger() const;
    bool isNumber() const;
    const char* typeName() const;

    Node member(const char* name) const;  // nothing when absent or when this is no object
    size_t size() const;                  // elements of an array
    Node at(size_t i) const;
    bool getSigned(long long& out) const;            // false when the integer does not fit
    bool getUnsigned(unsigned long long& out) const;  // false when negative or too large
    double getNumber() const;
    bool getBool() const;
    std::string getString() const;

private:
    const void* mJson = nullptr;
};

// Shared state behind every control: the profile, the trace, the absence list.
struct __attribute__((visibility("default"))) Panel {
    // The value scripted for the call `line` ("IName.op(arguments)") of iface.op: from the
    // memory when `memory`, else from BREL_SIM_PANEL when set, else from `defaults`, the
    // interface's part of the built-in profile; under the key with the arguments first, then
    // under op. `key` becomes the one found, for problem lines. Each source is parsed when
    // first asked.
    static Node lookup(const char* iface, const char* op, const std::string& line,
                       const char* defaults, bool memory, std::string& key);
    // With BREL_SIM_STATE set, a setter's call `line`, whose last in-argument begins at `last`,
    // stores that argument as its getter's answer (sim/Memory.cpp).
    static void remember(const char* iface, const char* op, const std::string& line, size_t last);
    // Appends one line to the BREL_SIM_TRACE file, if any, at once.
    static void trace(const std::string& line);
    // Whether BREL_SIM_ABSENT, as read at the first question, names `word`. A word of the list
    // that is neither "manager", "all" nor one of kAccessors gets its line then.
    static bool absent(const char* word);
    // One line on standard error, once per run: the profile, the key and what is wrong there.
    static void problem(const std::string& key, const std::string& what);
    // Forgets the parsed profiles, the absence list and the lines written: a new run begins, which
    // reads the environment again.
    static void reset();
};

// The names the service has, for checking a profile when it is first read: one line each, every
// line after a '\n'. Written at build time by sim/names.cmake from the controls' own lines:
//   "=Type field..."    a record and its fields, in order;
//   "IName"             an interface, followed by its operations, one line each:
//   " op R out:S..."    R what the operation returns, then its out-parameters, each with S what
//                       it holds: "." no names, "Type" a record, "[Type" a sequence of records;
//                       R may also be "-", nothing.
extern const char kNames[];

// The setters BREL_SIM_STATE remembers, and their getters: "IName setX getX", every line after
// a '\n'. Written by sim/names.cmake beside kNames.
extern const char kPairs[];

// The accessors of IBrelManager, each with a blank before and after: " getSystemCtrl ... ".
// From the list of controls in sim/Manager.cpp.
extern const char kAccessors[];

// A new control of the interface I. Each is defined beside its operations (sim/<Name>.cpp) and
// handed out by the accessor that sim/Manager.cpp lists for it.
template <typename I>
I* make();

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

// Where a conversion stands, for the problem line.
struct Reader {
    std::string key;  // "IAudioCtrl.getEQMode", then ".field", "[2]" while descending
    mutable bool failed = false;
    void problem(const std::string& what) const {
        failed = true;
        Panel::problem(key, what);
    }
};

// ---- profile value to C++ -----------------------------------------------------------------

template <typename T>
void read(Reader& r, Node n, T& out);
template <typename T>
void readArray(Reader& r, Node n, const OutArray<T>& array);

template <typename T>
void readInteger(Reader& r, Node n, T& out) {
    using Limits = std::numeric_limits<T>;
    if (!n.isInteger()) return r.problem(std::string("expected an integer, got ") + n.typeName());
    if constexpr (std::is_signed_v<T>) {
        long long v;
        if (n.getSigned(v) && v >= static_cast<long long>(Limits::min()) &&
            v <= static_cast<long long>(Limits::max())) {
            out = static_cast<T>(v);
            return;
        }
    } else {
        unsigned long long v;
        if (n.getUnsigned(v) && v <= static_cast<unsigned long long>(Limits::max())) {
            out = static_cast<T>(v);
            return;
        }
    }
    r.problem("integer out of range");
}

template <typename T>
void read(Reader& r, Node n, T& out) {
    if constexpr (std::is_same_v<T, bool>) {
        if (!n.isBool()) return r.problem(std::string("expected true or false, got ") + n.typeName());
        out = n.getBool();
    } else if constexpr (std::is_enum_v<T>) {
        std::underlying_type_t<T> v{};
        readInteger(r, n, v);
        out = static_cast<T>(v);
    } else if constexpr (std::is_integral_v<T>) {
        readInteger(r, n, out);
    } else if constexpr (std::is_floating_point_v<T>) {
        if (!n.isNumber()) return r.problem(std::string("expected a number, got ") + n.typeName());
        out = static_cast<T>(n.getNumber());
    } else if constexpr (std::is_same_v<T, std::string>) {
        if (!n.isString()) return r.problem(std::string("expected a string, got ") + n.typeName());
        out = n.getString();
    } else if constexpr (std::is_same_v<T, android::String16>) {
        if (!n.isString()) return r.problem(std::string("expected a string, got ") + n.typeName());
        std::string text = n.getString();
        out = android::String16(text.data(), text.size());
    } else if constexpr (std::is_array_v<T> && std::is_same_v<std::remove_extent_t<T>, char>) {
        // A text field of fixed width: it must leave room for its zero.
        if (!n.isString()) return r.problem(std::string("expected a string, got ") + n.typeName());
        std::string text = n.getString();
        if (text.size() >= std::extent_v<T>)
            return r.problem("text longer than " + std::to_string(std::extent_v<T> - 1) + " bytes");
        std::fill(std::begin(out), std::end(out), '\0');
        std::copy(text.begin(), text.end(), out);
    } else if constexpr (std::is_array_v<T>) {
        OutArray<std::remove_extent_t<T>> view{"", out, std::extent_v<T>};
        readArray(r, n, view);
    } else if constexpr (IsVector<T>::value) {
        if (!n.isArray()) return r.problem(std::string("expected an array, got ") + n.typeName());
        out.assign(n.size(), typename T::value_type{});
        std::string key = r.key;
        for (size_t i = 0; i < out.size(); ++i) {
            r.key = key + "[" + std::to_string(i) + "]";
            typename T::value_type element{};
            read(r, n.at(i), element);
            out[i] = std::move(element);
        }
        r.key = key;
    } else {
        if (!n.isObject()) return r.problem(std::string("expected an object, got ") + n.typeName());
        std::string key = r.key;
        Record<T>::each(out, [&](const char* name, auto& field) {
            Node member = n.member(name);
            if (!member.exists()) return;
            r.key = key + "." + name;
            read(r, member, field);
        });
        r.key = key;
    }
}

template <typename T>
void readArray(Reader& r, Node n, const OutArray<T>& array) {
    if (!n.isArray()) return r.problem(std::string("expected an array, got ") + n.typeName());
    if (n.size() > array.size)
        r.problem("more than " + std::to_string(array.size) + " elements, the rest ignored");
    std::string key = r.key;
    for (size_t i = 0; i < n.size() && i < array.size; ++i) {
        r.key = key + "[" + std::to_string(i) + "]";
        read(r, n.at(i), array.data[i]);
    }
    r.key = key;
}

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

// ---- one control ----------------------------------------------------------------------------

template <typename I>
class Control : public I {
protected:
    // `name` is the interface's name in profiles and traces; `defaults` its part of the
    // built-in profile, a JSON object text.
    Control(const char* name, const char* defaults) : mName(name), mDefaults(defaults) {}

    template <typename R = void, typename... A>
    R call(const char* op, const A&... args) {
        std::string line = std::string(mName) + "." + op + "(";
        size_t last = 0;  // where the last in-argument begins
        (traceArgument(line, last, args), ...);
        line += ')';

        // The memory first; a value there that cannot be read leaves the answer to the profile.
        std::conditional_t<std::is_void_v<R>, bool, R> result{};
        for (bool memory : {true, false}) {
            Reader reader;
            Node node = Panel::lookup(mName, op, line, mDefaults, memory, reader.key);
            if (!node.exists()) continue;
            answer<R>(reader, node, result, args...);
            if (!memory || !reader.failed) break;
            result = {};
        }
        // A negative integer answer is an error code: the panel refused the value.
        bool refused = false;
        if constexpr (std::is_integral_v<R> && std::is_signed_v<R>) refused = result < 0;
        if (last && !refused) Panel::remember(mName, op, line, last);
        if constexpr (std::is_void_v<R>) {
            Panel::trace(line);
        } else {
            line += " -> ";
            write(line, result);
            Panel::trace(line);
            return result;
        }
    }

private:
    const char* mName;
    const char* mDefaults;

    template <typename T>
    static void traceArgument(std::string& line, size_t& last, const T& argument) {
        if constexpr (!IsOut<T>::value) {
            if (last) line += ", ";
            last = line.size();
            write(line, argument);
        }
    }

    template <typename R, typename T, typename... A>
    static void answer(Reader& reader, Node node, T& result, const A&... args) {
        constexpr bool hasOut = (IsOut<A>::value || ...);
        if constexpr (std::is_void_v<R>) {
            if constexpr (hasOut) fillOuts(reader, node, args...);
        } else if constexpr (hasOut) {
            if (fillOuts(reader, node, args...) && node.member("result").exists()) {
                reader.key += ".result";
                read(reader, node.member("result"), result);
            }
        } else {
            read(reader, node, result);
        }
    }

    // The scripted object of an operation with out-parameters: one member per parameter.
    template <typename... A>
    static bool fillOuts(Reader& reader, Node node, const A&... args) {
        if (!node.exists()) return false;
        if (!node.isObject()) {
            reader.problem(std::string("expected an object of the result and out-parameters, got ") +
                           node.typeName());
            return false;
        }
        (fillOut(reader, node, args), ...);
        return true;
    }

    template <typename T>
    static void fillOut(Reader& reader, Node node, const T& argument) {
        if constexpr (IsOut<T>::value) {
            Node value = node.member(argument.name);
            if (!value.exists()) return;
            Reader at{reader.key + "." + argument.name};
            if constexpr (IsOutArray<T>::value)
                readArray(at, value, argument);
            else
                read(at, value, argument.ref);
            reader.failed = reader.failed || at.failed;
        }
    }
};

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
