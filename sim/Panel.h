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
#include <iterator>
#include <limits>
#include <string>
#include <utility>

#include "Trace.h"

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

// ---- one control ----------------------------------------------------------------------------

template <typename I>
class Control : public I {
protected:
    // `name` is the interface's name in profiles and traces; `defaults` its part of the
    // built-in profile, a JSON object text.
    Control(const char* name, const char* defaults) : mName(name), mDefaults(defaults) {}

    template <typename R = void, typename... A>
    R call(const char* op, const A&... args) {
        size_t last;  // where the last in-argument begins
        std::string line = callLine(mName, op, last, args...);

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
