#include "Panel.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <map>
#include <memory>
#include <optional>
#include <set>

#include "Files.h"
#include "Profiles.h"

namespace sim {

namespace {

const Json* json(const void* p) {
    return static_cast<const Json*>(p);
}

const char* envOrNull(const char* name) {
    const char* value = getenv(name);
    return value && *value ? value : nullptr;
}

// A parsed source of answers: the file of BREL_SIM_PANEL, or one interface's built-in part.
struct Source {
    std::string name;  // for problem lines
    Json root;         // an object, or null when it could not be used
};

std::unique_ptr<Source> gFile;                  // BREL_SIM_PANEL, once read
std::map<std::string, Source, std::less<>> gBuiltIn;  // built-in parts, by interface
std::string gProblemSource = "built-in profile";
const char* gAbsent = nullptr;  // BREL_SIM_ABSENT, once read
bool gAbsentRead = false;
std::map<std::string, size_t> gCalls;  // calls so far of each key answered in order

// The problem lines written so far. Made when first needed: a run without problems neither
// builds it nor registers its destructor.
std::set<std::string>& said() {
    static std::set<std::string> lines;
    return lines;
}

Source parse(std::string name, const std::string& text) {
    Source source{std::move(name), nullptr};
    try {
        source.root = Json::parse(text);
    } catch (const Json::parse_error& e) {
        say(source.name + ": not valid JSON: " + e.what());
        source.root = nullptr;
        return source;
    }
    if (!source.root.is_object()) {
        say(source.name + ": expected a JSON object, got " + source.root.type_name());
        source.root = nullptr;
    }
    return source;
}

// ---- the names a profile may use ------------------------------------------------------------

constexpr auto npos = std::string_view::npos;

// The words of a line of kNames.
std::vector<std::string_view> words(std::string_view line) {
    std::vector<std::string_view> found;
    for (size_t at = 0; at < line.size();) {
        size_t blank = std::min(line.find(' ', at), line.size());
        if (blank > at) found.push_back(line.substr(at, blank - at));
        at = blank + 1;
    }
    return found;
}

// Whether `name` can be found in kNames: one that holds its marks is none of them.
bool plain(const std::string& name) {
    return !name.empty() && name.find_first_of(" \n=:[") == std::string::npos;
}

// The rest of the line of `names` that begins with `head`, or nothing.
std::optional<std::string_view> lineAfter(std::string_view names, const std::string& head) {
    size_t at = names.find(head);
    if (at == npos) return std::nullopt;
    at += head.size();
    return names.substr(at, names.find('\n', at) - at);
}

const char kEmptyOrder[] = "\"in order\" takes a list of one answer or more";

// Whether `word` names something the panel can take away.
bool absentWord(const std::string& word) {
    return word == "manager" || word == "all" ||
           std::string_view(kAccessors).find(" " + word + " ") != npos;
}

// Names each key of a profile that the service does not have, once, on its first reading; the
// panel never asks for such a key, so it is otherwise ignored.
class NameCheck {
public:
    NameCheck(std::string file, bool memory) : mFile(std::move(file)), mMemory(memory) {}

    void profile(const Json& root) {
        for (const auto& panel : root.items()) {
            const std::string& iface = panel.key();
            if (iface == "absent") {
                absentWords(panel.value());
                continue;
            }
            size_t at = plain(iface) ? mNames.find("\n" + iface + "\n") : npos;
            if (at == npos) {
                unknown(iface, "no such interface");
                continue;
            }
            // Its operations: the lines after its own that begin with a blank.
            size_t begin = at + iface.size() + 1, end = begin;
            while (end + 1 < mNames.size() && mNames[end + 1] == ' ')
                end = mNames.find('\n', end + 1);
            std::string_view ops = mNames.substr(begin, end + 1 - begin);
            if (!panel.value().is_object()) continue;  // said when the panel looks there
            for (const auto& op : panel.value().items())
                operation(ops, iface + "." + op.key(), op.key(), op.value());
        }
    }

private:
    std::string_view mNames = kNames;
    std::string mFile;
    bool mMemory;

    void absentWords(const Json& words) {
        if (mMemory) return unknown("absent", "means nothing in the memory");
        if (!words.is_array()) return unknown("absent", "expected a list of words");
        for (const Json& word : words)
            if (!word.is_string() || !absentWord(word.get<std::string>()))
                unknown("absent", (word.is_string() ? word.get<std::string>() : word.dump()) + ": neither manager, all nor an accessor of IBrelManager");
    }

    void unknown(const std::string& key, const std::string& what) {
        say(mFile + ": " + key + ": " + what);
    }

    void operation(std::string_view ops, const std::string& key, const std::string& op,
                   const Json& value) {
        // "op" or "op(arguments)", the arguments as the trace writes them
        size_t open = op.back() == ')' ? op.find('(') : npos;
        std::string name = op.substr(0, open);
        std::optional<std::string_view> line;
        if (plain(name)) line = lineAfter(ops, "\n " + name + " ");
        if (!line) return unknown(key, "no such operation");
        std::vector<std::string_view> shapes = words(*line);  // in-arguments, result, "out:shape"
        if (open != npos) {
            std::string arguments = "[" + op.substr(open + 1, op.size() - open - 2) + "]";
            Json list = Json::parse(arguments, nullptr, false);
            if (list.is_discarded()) return unknown(key, "arguments not as the trace writes them");
            std::string takes(shapes[0]);
            takes += takes == "1" ? " argument" : " arguments";
            if (list.size() != std::stoul(takes))
                return unknown(key, "takes " + takes + ", not " + std::to_string(list.size()));
        }
        shapes.erase(shapes.begin());
        answer(key, shapes, value);
    }

    // An answer of the operation whose result and out-parameters have these shapes.
    void answer(const std::string& key, const std::vector<std::string_view>& shapes,
                const Json& value) {
        if (value.is_object() && value.contains("in order")) {
            const Json& list = value["in order"];
            if (!list.is_array() || list.empty()) return unknown(key, kEmptyOrder);
            for (size_t i = 0; i < list.size(); ++i)
                answer(key + "[" + std::to_string(i) + "]", shapes, list[i]);
            return;
        }
        if (shapes.size() == 1) return holds(key, shapes[0], value);
        if (!value.is_object()) return;  // said when the operation is called
        for (const auto& member : value.items()) {
            const std::string& name = member.key();
            std::string_view shape;
            if (name == "result" && shapes[0] != "-") shape = shapes[0];
            for (size_t i = 1; i < shapes.size() && shape.empty(); ++i)
                if (shapes[i].substr(0, shapes[i].find(':')) == name)
                    shape = shapes[i].substr(shapes[i].find(':') + 1);
            if (shape.empty())
                unknown(key + "." + name, "no such out-parameter");
            else
                holds(key + "." + name, shape, member.value());
        }
    }

    // The names inside a value of that shape ("." none, "Type" a record, "[Type" records).
    void holds(const std::string& key, std::string_view shape, const Json& value) {
        if (shape == "." || shape == "-") return;
        bool many = shape[0] == '[';
        std::string type(many ? shape.substr(1) : shape);
        std::vector<std::string_view> fields =
            words(lineAfter(mNames, "\n=" + type + " ").value_or(""));
        auto record = [&](const std::string& at, const Json& object) {
            if (!object.is_object()) return;  // said when the operation is called
            for (const auto& field : object.items())
                if (std::find(fields.begin(), fields.end(), field.key()) == fields.end())
                    unknown(at + "." + field.key(), "no such field of " + type);
        };
        if (!many)
            record(key, value);
        else if (value.is_array())
            for (size_t i = 0; i < value.size(); ++i)
                record(key + "[" + std::to_string(i) + "]", value[i]);
    }
};

}  // namespace

void say(std::string line) {
    line = "dumpbrel: simulated panel: " + line + "\n";
    if (said().insert(line).second) fputs(line.c_str(), stderr);
}

void blame(const std::string& source) { gProblemSource = source; }

Json readProfile(const char* path, bool memory, bool check) {
    std::string text;
    if (!readFile(path, text)) {
        if (memory && errno == ENOENT) return Json::object();
        say(std::string(path) + ": cannot read: " + strerror(errno));
        return nullptr;
    }
    if (memory && text.empty()) return Json::object();
    Source source = parse(path, text);
    if (check && !source.root.is_null()) NameCheck(path, memory).profile(source.root);
    return source.root;
}

namespace {

const Source& fileSource(const char* path) {
    if (!gFile || gFile->name != path)
        gFile = std::make_unique<Source>(Source{path, readProfile(path, false)});
    return *gFile;
}

const Source& builtInSource(const char* iface, const char* defaults) {
    auto found = gBuiltIn.find(iface);
    if (found == gBuiltIn.end())
        found = gBuiltIn.emplace(iface, parse("built-in profile", defaults)).first;
    return found->second;
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

}  // namespace

bool Node::isObject() const { return mJson && json(mJson)->is_object(); }
bool Node::isArray() const { return mJson && json(mJson)->is_array(); }
bool Node::isString() const { return mJson && json(mJson)->is_string(); }
bool Node::isBool() const { return mJson && json(mJson)->is_boolean(); }
bool Node::isInteger() const { return mJson && json(mJson)->is_number_integer(); }
bool Node::isNumber() const { return mJson && json(mJson)->is_number(); }
const char* Node::typeName() const { return mJson ? json(mJson)->type_name() : "nothing"; }

Node Node::member(const char* name) const {
    if (!isObject()) return Node();
    auto found = json(mJson)->find(name);
    return found == json(mJson)->end() ? Node() : Node(&*found);
}

size_t Node::size() const { return isArray() ? json(mJson)->size() : 0; }

Node Node::at(size_t i) const { return i < size() ? Node(&(*json(mJson))[i]) : Node(); }

bool Node::getSigned(long long& out) const {
    const Json& j = *json(mJson);
    if (j.is_number_unsigned()) {
        auto v = j.get<unsigned long long>();
        if (v > static_cast<unsigned long long>(std::numeric_limits<long long>::max()))
            return false;
        out = static_cast<long long>(v);
        return true;
    }
    out = j.get<long long>();
    return true;
}

bool Node::getUnsigned(unsigned long long& out) const {
    const Json& j = *json(mJson);
    if (j.is_number_unsigned()) {
        out = j.get<unsigned long long>();
        return true;
    }
    long long v = j.get<long long>();
    if (v < 0) return false;
    out = static_cast<unsigned long long>(v);
    return true;
}

double Node::getNumber() const { return json(mJson)->get<double>(); }
bool Node::getBool() const { return json(mJson)->get<bool>(); }
std::string Node::getString() const { return json(mJson)->get<std::string>(); }

Node Panel::lookup(const char* iface, const char* op, const std::string& line,
                   const char* defaults, bool memory, std::string& key) {
    const char* path = envOrNull("BREL_SIM_PANEL");
    const Json* root = memory ? recalled() : nullptr;
    if (!memory) {
        const Source& source = path ? fileSource(path) : builtInSource(iface, defaults);
        gProblemSource = source.name;
        root = &source.root;
    }
    if (!root || root->is_null()) return Node();
    Node panel(root);
    if (memory || path) {
        panel = panel.member(iface);
        if (panel.exists() && !panel.isObject()) {
            problem(iface, std::string("expected an object of operations, got ") + panel.typeName());
            return Node();
        }
    }
    key = line.substr(line.find('.') + 1);  // op(arguments)
    Node found = panel.member(key.c_str());
    if (!found.exists()) found = panel.member((key = op).c_str());
    key = std::string(iface) + "." + key;
    Node order = found.member("in order");
    if (!order.exists()) return found;
    // The n-th call of the key in this run takes the n-th answer; the calls after the last, the last.
    size_t nth = gCalls[key]++;
    if (order.size() == 0) {
        problem(key, kEmptyOrder);
        return Node();
    }
    nth = std::min(nth, order.size() - 1);
    key += "[" + std::to_string(nth) + "]";
    return order.at(nth);
}

void Panel::trace(const std::string& line) {
    const char* path = envOrNull("BREL_SIM_TRACE");
    if (!path) return;
    if (!appendLine(path, line)) say(std::string("trace ") + path + ": " + strerror(errno));
}

bool Panel::absent(const char* word) {
    if (!gAbsentRead) {
        gAbsent = getenv("BREL_SIM_ABSENT");
        gAbsentRead = true;
        // A word that names nothing the panel can take away gets its line.
        eachAbsent(gAbsent, [](std::string_view each) {
            std::string text(each);
            if (!absentWord(text))
                say("BREL_SIM_ABSENT: " + text +
                    ": neither manager, all nor an accessor of IBrelManager");
        });
    }
    bool found = false;
    eachAbsent(gAbsent, [&](std::string_view each) { found = found || each == word; });
    const char* path = envOrNull("BREL_SIM_PANEL");
    const Json* profile = path && !found ? &fileSource(path).root : nullptr;
    if (profile && profile->is_object() && profile->contains("absent") && (*profile)["absent"].is_array())
        for (const Json& each : (*profile)["absent"]) found = found || each == word;
    return found;
}

void Panel::problem(const std::string& key, const std::string& what) {
    say(gProblemSource + ": " + key + ": " + what);
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
