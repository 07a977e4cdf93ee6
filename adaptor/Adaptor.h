#pragma once

// One adaptor per interface of the service, written from its declarations at build time
// (adaptor/generate.py), stands where the tool expects the vendor's library. Each operation is a
// typed call: the interface and operation from the table of the service's shape, the in-arguments
// and the answer as JSON values. A backend answers it, when no library stands behind the adaptor
// (the simulated panel), or sees the library's answer pass (the recorder):
//
//     int getGpioDirBit(unsigned int gpio_no, int& is_input) override {
//         return adapt<int>(2, [&](IGpioCtrl& next) { return next.getGpioDirBit(gpio_no, is_input); },
//                           gpio_no, out(is_input));
//     }

#include <string>
#include <type_traits>

#include <utils/RefBase.h>

#include "adaptor/Values.h"

namespace android {
class IBrelManager;
}

namespace adaptor __attribute__((visibility("hidden"))) {

// One call of an operation, typed.
struct Call {
    Call(const Interface& in, const Operation& of) : iface(in), op(of) {}

    const Interface& iface;
    const Operation& op;
    Json::Value arguments{Json::arrayValue};  // the in-arguments, in order
    Json::Value result;  // what it answered; null when it answers nothing
    // As a profile holds it: the result, or an object of "result" and the out-parameters; null
    // when there is neither.
    Json::Value answer;

    // The in-arguments [from, to) as the trace writes them, ", " between them.
    std::string argumentsText(unsigned from, unsigned to) const;
    // "op" when it takes no in-argument, else "op(1, 30)": the key a profile answers it under.
    std::string key() const;
    // The trace's line: "IName.op(in-arguments)", and " -> result" when it answers something.
    std::string line() const;
};

class Backend {
public:
    // Offered an answer and where it stands ("panel.json: IAudioCtrl.getEQMode"), says whether
    // it could be taken.
    struct Take {
        bool (*take)(void* adaptor, const Json::Value& value, const std::string& where);
        void* adaptor;
        bool operator()(const Json::Value& value, const std::string& where) const {
            return take(adaptor, value, where);
        }
    };

    virtual ~Backend() = default;
    // With no library behind: whether the service lacks `accessor` ("manager", "getPQCtrl").
    virtual bool lacks(const char* /*accessor*/) { return false; }
    // The library behind answered null for `accessor`.
    virtual void lacked(const char* /*accessor*/) {}
    // With no library behind: offers `take` the answers it has for `call`, best first, until one
    // is taken. Nothing taken: the neutral answer.
    virtual void answer(Call& /*call*/, const Take& /*take*/) {}
    // What does not fit the type in an answer offered.
    virtual void problem(const std::string& /*where*/, const std::string& /*what*/) {}
    // The call, answered, before the answer goes back to the caller.
    virtual void answered(const Call& call) = 0;
};

// The manager of the service, every accessor handing out an adaptor over `backend`: over the
// library's own controls when `next` is a library's manager, alone when it is null. Generated.
android::IBrelManager* manager(Backend& backend, android::IBrelManager* next);

inline void tellBackend(const std::string& where, const std::string& what, void* backend) {
    static_cast<Backend*>(backend)->problem(where, what);
}

template <typename R>
using Slot = std::conditional_t<std::is_void_v<R>, bool, R>;

// How a call reaches the library's operation behind the adaptor: `pass` is the adaptor's call of
// it, `next` the library's control.
template <typename R>
using Through = Slot<R> (*)(void* pass, void* next);

namespace typed {

template <typename T>
void addIn(Json::Value& arguments, const T& argument) {
    if constexpr (!IsOut<T>::value) arguments.append(toJson(argument));
}

template <typename T>
void fillOut(Reader& reader, const Parameter& p, const Json::Value& value, const T& arg) {
    if constexpr (IsOut<T>::value) {
        if (!value.isMember(p.name)) return;
        Reader at = reader.at(std::string(".") + p.name);
        if constexpr (IsOutArray<T>::value)
            readElements(at, value[p.name], arg.data, arg.size);
        else
            read(at, value[p.name], arg.ref);
        reader.failed = reader.failed || at.failed;
    }
}

// The answer of a profile: the result alone, or an object of "result" and one member per
// out-parameter, named as declared.
template <typename R, typename... A>
void settle(Reader& reader, const Operation& op, const Json::Value& value, Slot<R>& result,
            const A&... args) {
    if constexpr (!(IsOut<A>::value || ...)) {
        if constexpr (!std::is_void_v<R>) read(reader, value, result);
    } else {
        if (!value.isObject())
            return reader.problem(
                    std::string("expected an object of the result and out-parameters, got ") +
                    typeName(value));
        unsigned i = 0;
        auto fill = [&](const auto& arg) { fillOut(reader, op.parameters[i++], value, arg); };
        (fill(args), ...);
        if constexpr (!std::is_void_v<R>) {
            if (value.isMember("result")) {
                reader.where += ".result";
                read(reader, value["result"], result);
            }
        }
    }
}

template <typename... A>
Json::Value answerOf(const Call& call, const A&... args) {
    if constexpr (!(IsOut<A>::value || ...)) {
        return call.result;
    } else {
        Json::Value object(Json::objectValue);
        if (call.op.result) object["result"] = call.result;
        unsigned i = 0;
        auto put = [&](const auto& arg) {
            if constexpr (IsOut<std::decay_t<decltype(arg)>>::value)
                object[call.op.parameters[i].name] = toJson(arg);
            ++i;
        };
        (put(args), ...);
        return object;
    }
}

// One call, of any operation of this signature: through to the library behind, or answered by
// the backend; then handed to the backend as answered. Made once per signature, never copied into
// each operation.
template <typename R, typename... A>
R call(Backend& backend, const Interface& shape, unsigned op, void* next, Through<R> through,
       void* pass, const A&... args) {
    Call call(shape, shape.operations[op]);
    (addIn(call.arguments, args), ...);
    Slot<R> result{};
    if (next != nullptr) {
        result = through(pass, next);
    } else {
        auto take = [&](const Json::Value& value, const std::string& where) {
            result = Slot<R>{};
            Reader reader{where, &tellBackend, &backend};
            settle<R>(reader, call.op, value, result, args...);
            return !reader.failed;
        };
        using Take = decltype(take);
        backend.answer(call, {[](void* self, const Json::Value& value, const std::string& where) {
                                  return (*static_cast<Take*>(self))(value, where);
                              },
                              &take});
    }
    if constexpr (!std::is_void_v<R>) call.result = toJson(result);
    call.answer = answerOf(call, args...);
    backend.answered(call);
    if constexpr (!std::is_void_v<R>) return result;
}

}  // namespace typed

// What an interface's adaptor holds beside the interface itself, which it derives from too. The
// library's control behind it is set in the adaptor's constructor body, where nothing it calls can
// see the object half built: the interface's own table of operations is then never used and the
// compiler need not keep it, nor the loader bind it.
template <typename I>
class Adaptor {
protected:
    Adaptor(Backend& backend, const Interface& shape) : mBackend(backend), mShape(shape) {}

    void follow(I* next) { mNext = next; }

    // Operation `op` of the interface: `pass` calls it on the library's control. All but that
    // call is the same for every operation of one signature, and made once for them.
    template <typename R, typename Pass, typename... A>
    R adapt(unsigned op, Pass&& pass, const A&... args) {
        Through<R> through = [](void* p, void* next) -> Slot<R> {
            Pass& of = *static_cast<Pass*>(p);
            if constexpr (std::is_void_v<R>)
                return of(*static_cast<I*>(next)), Slot<R>{};
            else
                return of(*static_cast<I*>(next));
        };
        return typed::call<R>(mBackend, mShape, op, mNext.get(), through, &pass, args...);
    }

private:
    Backend& mBackend;
    const Interface& mShape;
    android::sp<I> mNext;
};

// The control an accessor hands out: an adaptor of type A over the library's own control, or,
// with no library behind, over the backend alone; null where the service lacks it.
template <typename A, typename M, typename I>
I* control(Backend& backend, M* next, const Interface& shape, I* (M::*get)()) {
    if (next == nullptr) return backend.lacks(shape.accessor) ? nullptr : new A(backend, nullptr);
    I* real = (next->*get)();
    if (real == nullptr) {
        backend.lacked(shape.accessor);
        return nullptr;
    }
    return new A(backend, real);
}

}  // namespace adaptor
