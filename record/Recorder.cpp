// What the recorder writes: the trace of BREL_RECORD_TRACE, and the answers, into the profile of
// BREL_RECORD. Each answer is in the file before the call returns: under the lock of
// "<file>.lock" the file is read again, the answer merged in, and the whole written beside it
// and renamed over it, so runs recording at once lose nothing and a killed one leaves a whole
// file. A key belongs to the run that first wrote it.

#include "Recorder.h"

#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <map>
#include <memory>
#include <set>
#include <vector>

#include <json/json.h>

#include "sim/Files.h"
#include "sim/Trace.h"

namespace record {

namespace {

const char* envOrNull(const char* name) {
    const char* value = getenv(name);
    return value && *value ? value : nullptr;
}

// One line on standard error, once per run.
void say(const std::string& what) {
    static std::set<std::string> said;
    std::string line = "dumpbrel: recorder: " + what + "\n";
    if (said.insert(line).second) fputs(line.c_str(), stderr);
}

struct Run {
    std::string path;  // BREL_RECORD
    bool broken = false;  // the file cannot be used: never written
    std::map<std::string, std::vector<Json::Value>> answers;  // "IName.key": this run's, in order
    std::set<std::string> owned;                              // the keys this run wrote
};

Run& run() {
    static Run state;
    return state;
}

bool parse(const std::string& text, Json::Value& value, std::string* errors = nullptr) {
    Json::CharReaderBuilder builder;
    std::unique_ptr<Json::CharReader> reader(builder.newCharReader());
    std::string ignored;
    return reader->parse(text.data(), text.data() + text.size(), &value, errors ? errors : &ignored);
}

// The file, or false after the line that says why it cannot be used; a file that does not exist
// or is empty is an empty profile.
bool load(Run& state, Json::Value& root) {
    const std::string& path = state.path;
    std::string text, errors;
    root = Json::Value(Json::objectValue);
    if (!sim::readFile(path.c_str(), text) && errno != ENOENT) {
        say(path + ": cannot read: " + strerror(errno));
    } else if (!text.empty() && !parse(text, root, &errors)) {
        say(path + ": not valid JSON: " + errors.substr(0, errors.find('\n')));
    } else if (!root.isObject()) {
        say(path + ": expected a JSON object");
    } else if (!text.empty() && access(path.c_str(), W_OK) != 0) {
        say(path + ": cannot write: " + strerror(errno));
    } else {
        for (const std::string& name : root.getMemberNames()) {
            bool words = name == "absent";
            if (words ? root[name].isArray() : root[name].isObject()) continue;
            say(path + ": " + name + (words ? ": expected an array of words" : ": expected an object of operations"));
            return false;
        }
        return true;
    }
    return false;
}

// JSON text as the panel's memory is written: two blanks a level, `"name": value`.
void dump(std::string& text, const Json::Value& value, const std::string& indent) {
    bool object = value.isObject();
    if ((!object && !value.isArray()) || value.empty()) {
        char number[32];
        switch (value.type()) {
            case Json::stringValue: text += sim::jsonString(value.asString()); break;
            case Json::booleanValue: text += value.asBool() ? "true" : "false"; break;
            case Json::intValue: text += std::to_string(value.asLargestInt()); break;
            case Json::uintValue: text += std::to_string(value.asLargestUInt()); break;
            case Json::realValue:  // the shorter of two precisions that reads back the same
                snprintf(number, sizeof number, "%.15g", value.asDouble());
                if (strtod(number, nullptr) != value.asDouble())
                    snprintf(number, sizeof number, "%.17g", value.asDouble());
                text += number;
                if (!strpbrk(number, ".en")) text += ".0";
                break;
            case Json::objectValue: text += "{}"; break;
            case Json::arrayValue: text += "[]"; break;
            default: text += "null";
        }
        return;
    }
    text += object ? "{\n" : "[\n";
    const std::vector<std::string> names = object ? value.getMemberNames() : std::vector<std::string>();
    for (Json::ArrayIndex i = 0; i < value.size(); ++i) {
        text += indent + "  ";
        if (object) text += sim::jsonString(names[i]) + ": ";
        dump(text, object ? value[names[i]] : value[i], indent + "  ");
        text += i + 1 < value.size() ? ",\n" : "\n";
    }
    text += indent + (object ? "}" : "]");
}

// Runs `change` on the file's profile under the lock, and writes the profile back when it says
// so; a file that cannot be used is named once and left alone for the rest of the run.
template <typename Change>
void update(Change change) {
    Run& state = run();
    const char* path = envOrNull("BREL_RECORD");
    if (state.path.empty() && path) state.path = path;
    if (state.broken || state.path.empty()) return;
    int lock = sim::lockBeside(state.path);
    if (lock < 0) {
        say(state.path + ": cannot record: " + strerror(errno));
        state.broken = true;
        return;
    }
    Json::Value root;
    state.broken = !load(state, root);
    if (!state.broken && change(root)) {
        std::string text;
        dump(text, root, "");
        if (!sim::replaceFile(state.path, text + "\n")) {
            say(state.path + ": cannot record: " + strerror(errno));
            state.broken = true;
        }
    }
    close(lock);
}

}  // namespace

void answered(const char* iface, const char* op, const std::string& line, size_t last,
              const std::string& result, const std::string& answer) {
    if (const char* trace = envOrNull("BREL_RECORD_TRACE")) {
        if (!sim::appendLine(trace, result.empty() ? line : line + " -> " + result))
            say(std::string("trace ") + trace + ": " + strerror(errno));
    }
    if (answer.empty()) return;
    std::string key = last ? line.substr(line.find('.') + 1) : op;
    Json::Value value;
    if (!parse(answer, value)) return say(std::string(iface) + "." + key + ": " + answer + ": no JSON");
    Run& state = run();
    std::vector<Json::Value>& answers = state.answers[std::string(iface) + "." + key];
    answers.push_back(value);
    update([&](Json::Value& root) {
        Json::Value& panel = root[iface];
        bool mine = state.owned.count(iface + ("." + key)) > 0;
        if (panel.isMember(key) && !mine) return false;
        state.owned.insert(iface + ("." + key));
        bool same = true;
        for (const Json::Value& each : answers) same = same && each == answers.front();
        if (same) {
            value = answers.front();
        } else {
            value = Json::Value(Json::objectValue);
            Json::Value& list = value["in order"] = Json::Value(Json::arrayValue);
            for (const Json::Value& each : answers) list.append(each);
        }
        if (panel.isMember(key) && panel[key] == value) return false;
        panel[key] = value;
        return true;
    });
}

void absent(const char* word) {
    update([&](Json::Value& root) {
        Json::Value& words = root["absent"];
        for (const Json::Value& each : words)
            if (each.isString() && each.asString() == word) return false;
        words.append(word);
        return true;
    });
}

}  // namespace record

// The recorder's entry for the preloaded front (record/Front.cpp): the library's manager wrapped,
// or null written absent.
extern "C" __attribute__((visibility("default"))) android::IBrelManager* brel_record_wrap(
        android::IBrelManager* real) {
    if (real == nullptr) record::absent("manager");
    return record::wrap(real);
}
