// The recording (BREL_RECORD): each answer goes into the file as a profile of the simulated panel
// before the call returns. Under the lock of "<file>.lock" the file is read again, the answer
// merged in, and the whole written beside it and renamed over it, so runs recording at once lose
// nothing and a killed one leaves a whole file. A key belongs to the run that first wrote it; a
// later run that the panel answered otherwise is named.

#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <set>
#include <vector>

#include "Recorder.h"
#include "adaptor/Files.h"

namespace record {

namespace {

struct Run {
    std::string path;       // BREL_RECORD
    bool checked = false;   // its role and kind, at the first question of the run
    bool broken = false;    // the file cannot be used: never written
    std::map<std::string, std::vector<Json::Value>> answers;  // "IName.key": this run's, in order
    std::set<std::string> owned;     // the keys this run wrote
    std::set<std::string> differed;  // the keys whose other answer this run has named
};

Run& run() {
    static Run state;
    return state;
}

// Whether the file can be recorded into at all: it is the recording's alone (the profile and the
// memory keep theirs), and a regular file that may be written, or nothing yet.
bool usable(Run& state) {
    static const std::pair<const char*, const char*> kRoles[] = {
            {"BREL_SIM_PANEL", "the profile"}, {"BREL_SIM_STATE", "the panel's memory"}};
    for (const auto& [variable, role] : kRoles) {
        const char* other = envOrNull(variable);
        if (other && adaptor::sameFile(state.path, other)) {
            say(state.path + ": named as " + role + " too (" + variable + "): nothing recorded");
            return false;
        }
    }
    std::string why = adaptor::unusable(state.path, true);
    if (!why.empty()) say(state.path + ": " + why + ": nothing recorded");
    return why.empty();
}

// The file, or false after the line that says why it cannot be used. A file that does not exist
// or is empty is started, and says it is a recording.
bool load(Run& state, Json::Value& root) {
    const std::string& path = state.path;
    std::string text, error;
    std::string why = adaptor::readFile(path, text);
    root = Json::Value(Json::objectValue);
    if (why == adaptor::kMissing || (why.empty() && text.empty())) {
        root["recorded"] = true;
        return true;
    }
    if (!why.empty()) {
        say(path + ": " + why);
    } else if (!adaptor::parse(text, root, error)) {
        say(path + ": not valid JSON: " + error);
    } else if (!root.isObject()) {
        say(path + ": expected a JSON object");
    } else {
        for (const std::string& name : root.getMemberNames()) {
            const Json::Value& member = root[name];
            const char* expected = name == "absent"     ? (member.isArray() ? nullptr : "an array of words")
                                   : name == "recorded" ? (member.isBool() ? nullptr : "true or false")
                                                        : (member.isObject() ? nullptr : "an object of operations");
            if (!expected) continue;
            say(path + ": " + name + ": expected " + expected);
            return false;
        }
        return true;
    }
    return false;
}

// Runs `change` on the file's profile under the lock, and writes the profile back when it says
// so; a file that cannot be used is named once and left alone for the rest of the run.
template <typename Change>
void update(Change change) {
    Run& state = run();
    const char* path = envOrNull("BREL_RECORD");
    if (state.path.empty() && path) state.path = path;
    if (state.path.empty()) return;
    if (!state.checked) {
        state.checked = true;
        state.broken = !usable(state);
    }
    if (state.broken) return;
    int lock = -1;
    std::string why = adaptor::lockBeside(state.path, lock);
    if (!why.empty()) {
        say(state.path + ": cannot record: " + why);
        state.broken = true;
        return;
    }
    Json::Value root;
    state.broken = !load(state, root);
    if (!state.broken && change(root)) {
        why = adaptor::replaceFile(state.path, adaptor::profileText(root) + "\n");
        if (!why.empty()) {
            say(state.path + ": cannot record: " + why);
            state.broken = true;
        }
    }
    close(lock);
}

// Whether a run has recorded an answer through `accessor` ("manager": through any).
bool recordedThrough(const Json::Value& root, const std::string& accessor) {
    for (const std::string& name : root.getMemberNames()) {
        const adaptor::Interface* in = adaptor::kService.find(name);
        if (in && root[name].isObject() && !root[name].empty() &&
            (accessor == "manager" || accessor == in->accessor))
            return true;
    }
    return false;
}

// create() or an accessor answered null: `word` ("manager", "getPQCtrl") joins "absent", while no
// run has recorded an answer through it: what an earlier run recorded always replays.
void absent(const char* word) {
    update([&](Json::Value& root) {
        if (recordedThrough(root, word)) return false;
        Json::Value& words = root["absent"];
        for (const Json::Value& each : words)
            if (each.isString() && each.asString() == word) return false;
        words.append(word);
        return true;
    });
}

// An answer recorded through `accessor` ends its absence, and the manager's.
void present(Json::Value& root, const char* accessor) {
    if (!root.isMember("absent")) return;
    Json::Value kept(Json::arrayValue);
    for (const Json::Value& each : root["absent"])
        if (each != accessor && each != "manager") kept.append(each);
    if (kept.empty())
        root.removeMember("absent");
    else
        root["absent"] = kept;
}

// This run's latest answer for `at` against what another run recorded there: named once when
// they differ, for a recording never hides that the panel answered otherwise.
void compare(Run& state, const std::string& at, const Json::Value& recorded,
             const std::vector<Json::Value>& answers) {
    const Json::Value* expected = &recorded;
    if (recorded.isObject() && recorded["in order"].isArray() && !recorded["in order"].empty()) {
        const Json::Value& order = recorded["in order"];
        expected = &order[std::min<Json::ArrayIndex>(static_cast<Json::ArrayIndex>(answers.size() - 1),
                                                     order.size() - 1)];
    }
    if (*expected == answers.back() || !state.differed.insert(at).second) return;
    say(state.path + ": " + at + ": the recording has " + adaptor::profileText(*expected, true) +
        ", the panel answered " + adaptor::profileText(answers.back(), true) + " (kept the recording's)");
}

}  // namespace

void recordAbsent(const char* word) {
    absent(word);
}

void recordAnswer(const adaptor::Call& call) {
    if (call.answer.isNull()) return;
    const std::string key = call.key(), at = call.iface.name + ("." + key);
    Run& state = run();
    std::vector<Json::Value>& answers = state.answers[at];
    answers.push_back(call.answer);
    update([&](Json::Value& root) {
        const Json::Value& recorded = root[call.iface.name][key];
        if (!recorded.isNull() && !state.owned.count(at)) {
            compare(state, at, recorded, answers);
            return false;
        }
        state.owned.insert(at);
        bool same = true;
        for (const Json::Value& each : answers) same = same && each == answers.front();
        Json::Value value = answers.front();
        if (!same) {
            value = Json::Value(Json::objectValue);
            Json::Value& list = value["in order"] = Json::Value(Json::arrayValue);
            for (const Json::Value& each : answers) list.append(each);
        }
        const Json::Value absence = root.get("absent", Json::Value());
        present(root, call.iface.accessor);
        if (recorded == value && absence == root.get("absent", Json::Value())) return false;
        root[call.iface.name][key] = value;
        return true;
    });
}

}  // namespace record
