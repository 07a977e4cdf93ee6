// The simulated panel's backend: a call is answered from the memory, then from the profile in
// force (BREL_SIM_PANEL's file, or the built-in profile), under the key with the call's
// arguments first, then under the operation's name; "in order" answers count the calls of their
// key. A profile's names are checked against the table of the service's shape when it is first
// read. Each call is traced (BREL_SIM_TRACE), and a setter the memory keeps stores its value.

#include "Panel.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <map>
#include <memory>
#include <set>
#include <vector>

#include "Profiles.h"
#include "adaptor/Files.h"
#include "service/BrelCreator.h"

namespace sim {

// The built-in profile (sim/panel.json): one JSON object of operations per interface, written
// into the library at build time.
extern const char* const kBuiltIn[][2];
extern const size_t kBuiltInCount;

namespace {

using adaptor::Call;
using adaptor::kService;
using adaptor::Kind;
using adaptor::Operation;
using adaptor::Type;

const char* envOrNull(const char* name) {
    const char* value = getenv(name);
    return value && *value ? value : nullptr;
}

// A parsed source of answers: the file of BREL_SIM_PANEL, or one interface's built-in part.
struct Source {
    std::string name;  // for problem lines
    Json::Value root;  // an object, or null when it could not be used
};

std::unique_ptr<Source> gFile;                         // BREL_SIM_PANEL, once read
std::map<std::string, Source, std::less<>> gBuiltIn;  // built-in parts, by interface
std::vector<std::string> gAbsent;  // BREL_SIM_ABSENT's words, once read
std::string gAbsentProfile;        // the profile whose "absent" adds to them
bool gAbsentRead = false;
std::map<std::string, size_t> gCalls;  // calls so far of each key answered in order

// The problem lines written so far. Made when first needed: a run without problems neither
// builds it nor registers its destructor.
std::set<std::string>& said() {
    static std::set<std::string> lines;
    return lines;
}

constexpr auto npos = std::string::npos;
const char kEmptyOrder[] = "\"in order\" takes a list of one answer or more";
const char kAbsentWords[] = ": neither manager, all nor an accessor of IBrelManager";

// Whether `word` names something the panel can take away.
bool absentWord(const std::string& word) {
    if (word == "manager" || word == "all") return true;
    for (unsigned i = 0; i < kService.count; ++i)
        if (word == kService.interfaces[i].accessor) return true;
    return false;
}

// Names each key of a profile that the service does not have, once, on its first reading; the
// panel never asks for such a key, so it is otherwise ignored.
class NameCheck {
public:
    NameCheck(std::string file, bool memory) : mFile(std::move(file)), mMemory(memory) {}

    void profile(const Json::Value& root) {
        for (const std::string& iface : root.getMemberNames()) {
            const Json::Value& ops = root[iface];
            if (iface == "absent") {
                absentWords(ops);
                continue;
            }
            if (iface == "recorded") {
                if (mMemory) unknown(iface, "means nothing in the memory");
                else if (!ops.isBool()) unknown(iface, std::string("expected true or false, got ") + adaptor::typeName(ops));
                continue;
            }
            const adaptor::Interface* in = kService.find(iface);
            if (!in) {
                unknown(iface, "no such interface");
                continue;
            }
            if (!ops.isObject()) continue;  // said when the panel looks there
            for (const std::string& op : ops.getMemberNames())
                operation(*in, iface + "." + op, op, ops[op]);
        }
    }

private:
    std::string mFile;
    bool mMemory;

    void unknown(const std::string& key, const std::string& what) {
        say(mFile + ": " + key + ": " + what);
    }

    void absentWords(const Json::Value& words) {
        if (mMemory) return unknown("absent", "means nothing in the memory");
        if (!words.isArray()) return unknown("absent", "expected a list of words");
        for (const Json::Value& word : words)
            if (!word.isString() || !absentWord(word.asString()))
                unknown("absent", (word.isString() ? word.asString() : adaptor::profileText(word, true)) +
                                          kAbsentWords);
    }

    // "op" or "op(arguments)", the arguments as the trace writes them.
    void operation(const adaptor::Interface& in, const std::string& key, const std::string& op,
                   const Json::Value& value) {
        size_t open = !op.empty() && op.back() == ')' ? op.find('(') : npos;
        const Operation* found = kService.find(in, op.substr(0, open));
        if (!found) return unknown(key, "no such operation");
        if (open != npos) {
            Json::Value list;
            std::string error;
            if (!adaptor::parse("[" + op.substr(open + 1, op.size() - open - 2) + "]", list, error))
                return unknown(key, "arguments not as the trace writes them");
            std::string takes = std::to_string(found->ins) + (found->ins == 1 ? " argument" : " arguments");
            if (list.size() != found->ins)
                return unknown(key, "takes " + takes + ", not " + std::to_string(list.size()));
        }
        answer(key, *found, value);
    }

    // An answer of the operation: its result, or an object of its result and out-parameters.
    void answer(const std::string& key, const Operation& op, const Json::Value& value) {
        if (value.isObject() && value.isMember("in order")) {
            const Json::Value& list = value["in order"];
            if (!list.isArray() || list.empty()) return unknown(key, kEmptyOrder);
            for (Json::ArrayIndex i = 0; i < list.size(); ++i)
                answer(key + "[" + std::to_string(i) + "]", op, list[i]);
            return;
        }
        if (op.ins == op.count) {
            if (op.result) holds(key, *op.result, value);
            return;
        }
        if (!value.isObject()) return;  // said when the operation is called
        for (const std::string& name : value.getMemberNames()) {
            const Type* type = name == "result" ? op.result : nullptr;
            for (unsigned i = 0; i < op.count && !type; ++i)
                if (op.parameters[i].out && name == op.parameters[i].name) type = &op.parameters[i].type;
            if (!type)
                unknown(key + "." + name, "no such out-parameter");
            else
                holds(key + "." + name, *type, value[name]);
        }
    }

    // The names inside a value of that type: the fields of its records.
    void holds(const std::string& key, const Type& type, const Json::Value& value) {
        if ((type.kind == Kind::Vector || type.kind == Kind::Array) && value.isArray()) {
            for (Json::ArrayIndex i = 0; i < value.size(); ++i)
                holds(key + "[" + std::to_string(i) + "]", *type.element, value[i]);
        } else if (type.kind == Kind::Record && value.isObject()) {
            for (const std::string& name : value.getMemberNames()) {
                const adaptor::Field* field = nullptr;
                for (unsigned i = 0; i < type.record->count && !field; ++i)
                    if (name == type.record->fields[i].name) field = &type.record->fields[i];
                if (!field)
                    unknown(key + "." + name, std::string("no such field of ") + type.record->name);
                else
                    holds(key + "." + name, field->type, value[name]);
            }
        }
    }
};

const Source& fileSource(const char* path) {
    if (!gFile || gFile->name != path)
        gFile = std::make_unique<Source>(Source{path, readProfile(path, false)});
    return *gFile;
}

const Source& builtInSource(const std::string& iface) {
    auto found = gBuiltIn.find(iface);
    if (found != gBuiltIn.end()) return found->second;
    Source source{"built-in profile", Json::Value()};
    for (size_t i = 0; i < kBuiltInCount; ++i) {
        std::string error;
        if (iface == kBuiltIn[i][0] && !adaptor::parse(kBuiltIn[i][1], source.root, error))
            say(source.name + ": " + iface + ": not valid JSON: " + error);
    }
    return gBuiltIn.emplace(iface, std::move(source)).first->second;
}

// Calls `each` with every word of BREL_SIM_ABSENT's `list`: split at commas, the blanks around
// each dropped, empty ones skipped.
template <typename F>
void eachAbsent(const char* list, F&& each) {
    constexpr const char* kBlanks = " \t\n\v\f\r";
    for (std::string_view rest = list ? list : ""; !rest.empty();) {
        size_t comma = rest.find(',');
        std::string_view word = rest.substr(0, comma);
        rest = comma == npos ? std::string_view() : rest.substr(comma + 1);
        size_t first = word.find_first_not_of(kBlanks);
        if (first != npos) each(word.substr(first, word.find_last_not_of(kBlanks) + 1 - first));
    }
}

// Whether BREL_SIM_ABSENT, or else the profile in force, names `word`, as they are at the first
// question of a run. A word of the variable that names nothing the panel can take away gets its
// line then.
bool absent(const char* word) {
    if (!gAbsentRead) {
        gAbsentRead = true;
        gAbsent.clear();
        eachAbsent(getenv("BREL_SIM_ABSENT"), [](std::string_view each) {
            std::string text(each);
            if (!absentWord(text)) say("BREL_SIM_ABSENT: " + text + kAbsentWords);
            gAbsent.push_back(std::move(text));
        });
        const char* path = envOrNull("BREL_SIM_PANEL");
        gAbsentProfile = path ? path : "";
    }
    if (std::find(gAbsent.begin(), gAbsent.end(), word) != gAbsent.end()) return true;
    if (gAbsentProfile.empty()) return false;
    const Json::Value& profile = fileSource(gAbsentProfile.c_str()).root;
    if (profile.isObject() && profile["absent"].isArray())
        for (const Json::Value& each : profile["absent"])
            if (each == word) return true;
    return false;
}

class Simulated : public adaptor::Backend {
public:
    bool lacks(const char* accessor) override {
        if (strcmp(accessor, "manager") == 0) return absent(accessor);
        return absent("all") || absent(accessor);
    }

    // The memory first; a value there that cannot be read leaves the answer to the profile. A
    // recording that lacks the call says so once the call is answered.
    void answer(Call& call, const Take& take) override {
        std::string where;
        mLacking.clear();
        for (bool memory : {true, false}) {
            const Json::Value* value = lookup(call, memory, where);
            if (value && (take(*value, where) || !memory)) return;
        }
        const char* path = envOrNull("BREL_SIM_PANEL");
        if (path && fileSource(path).root["recorded"] == true) mLacking = path;
    }

    void problem(const std::string& where, const std::string& what) override {
        say(where + ": " + what);
    }

    void answered(const Call& call) override {
        // A negative integer answer is an error code: the panel refused the value.
        bool refused = call.op.result && call.op.result->kind == Kind::Integer &&
                       call.result.type() == Json::intValue && call.result.asInt64() < 0;
        if (call.op.getter >= 0 && call.op.ins > 0 && !refused) remember(call);
        if (!mLacking.empty() && !call.answer.isNull())
            say(mLacking + ": " + call.iface.name + "." + call.key() + ": not in the recording, answered " +
                adaptor::profileText(call.answer, true));
        const char* path = envOrNull("BREL_SIM_TRACE");
        std::string why = path ? adaptor::appendLine(path, call.line()) : "";
        if (!why.empty()) say(std::string("trace ") + path + ": " + why);
    }

private:
    std::string mLacking;  // the recording that lacks the call being answered

    // The value for `call` in the memory, or in the profile in force; `where` becomes its file
    // and key, for problem lines.
    static const Json::Value* lookup(const Call& call, bool memory, std::string& where) {
        const char* path = envOrNull("BREL_SIM_PANEL");
        const std::string iface = call.iface.name;
        std::string source;
        const Json::Value* panel = memory ? recalled(source) : nullptr;
        if (!memory) {
            const Source& found = path ? fileSource(path) : builtInSource(iface);
            source = found.name;
            panel = &found.root;
        }
        if (!panel || panel->isNull()) return nullptr;
        if (memory || path) {
            if (!panel->isMember(iface)) return nullptr;
            panel = &(*panel)[iface];
            if (!panel->isObject()) {
                say(source + ": " + iface + ": expected an object of operations, got " +
                    adaptor::typeName(*panel));
                return nullptr;
            }
        }
        std::string key = call.op.name + ("(" + call.argumentsText(0, call.op.ins)) + ")";
        if (!panel->isMember(key)) key = call.op.name;
        if (!panel->isMember(key)) return nullptr;
        const Json::Value* found = &(*panel)[key];
        key = iface + "." + key;
        if (found->isObject() && found->isMember("in order")) {
            // The n-th call of the key in this run takes the n-th answer; the calls after the
            // last, the last.
            const Json::Value& order = (*found)["in order"];
            size_t nth = gCalls[key]++;
            if (!order.isArray() || order.empty()) {
                say(source + ": " + key + ": " + kEmptyOrder);
                return nullptr;
            }
            nth = std::min<size_t>(nth, order.size() - 1);
            key += "[" + std::to_string(nth) + "]";
            found = &order[static_cast<Json::ArrayIndex>(nth)];
        }
        where = source + ": " + key;
        return found;
    }
};

Simulated& backend() {
    static Simulated panel;
    return panel;
}

}  // namespace

void say(std::string line) {
    line = "dumpbrel: simulated panel: " + line + "\n";
    if (said().insert(line).second) fputs(line.c_str(), stderr);
}

Json::Value readProfile(const char* path, bool memory, bool check) {
    std::string text, error;
    const std::string why = adaptor::readFile(path, text);
    if (memory && why == adaptor::kMissing) return Json::Value(Json::objectValue);
    if (!why.empty()) {
        say(std::string(path) + ": " + why);
        return Json::Value();
    }
    if (memory && text.empty()) return Json::Value(Json::objectValue);
    Json::Value root;
    if (!adaptor::parse(text, root, error)) {
        say(std::string(path) + ": not valid JSON: " + error);
        return Json::Value();
    }
    if (!root.isObject()) {
        say(std::string(path) + ": expected a JSON object, got " + adaptor::typeName(root));
        return Json::Value();
    }
    if (check) NameCheck(path, memory).profile(root);
    return root;
}

void Panel::reset() {
    gFile.reset();
    gBuiltIn.clear();
    gAbsentRead = false;
    gCalls.clear();
    forget();
    said().clear();
}

}  // namespace sim

android::IBrelManager* android::BrelCreator::create() {
    if (sim::backend().lacks("manager")) return nullptr;
    return adaptor::manager(sim::backend(), nullptr);
}
