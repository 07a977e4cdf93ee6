// The recorder, libbrel_record_core.so: the generated adaptor over the vendor's library, with a
// backend that writes what the library answered. With BREL_RECORD_TRACE each call's trace line
// is appended to that file; with BREL_RECORD each answer goes into that file as a profile of the
// simulated panel before the call returns: under the lock of "<file>.lock" the file is read
// again, the answer merged in, and the whole written beside it and renamed over it, so runs
// recording at once lose nothing and a killed one leaves a whole file. A key belongs to the run
// that first wrote it.

#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <map>
#include <set>
#include <vector>

#include "adaptor/Adaptor.h"
#include "adaptor/Files.h"

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
    std::string path;      // BREL_RECORD
    bool broken = false;   // the file cannot be used: never written
    std::map<std::string, std::vector<Json::Value>> answers;  // "IName.key": this run's, in order
    std::set<std::string> owned;                              // the keys this run wrote
};

Run& run() {
    static Run state;
    return state;
}

// The file, or false after the line that says why it cannot be used; a file that does not exist
// or is empty is an empty profile.
bool load(Run& state, Json::Value& root) {
    const std::string& path = state.path;
    std::string text, error;
    root = Json::Value(Json::objectValue);
    if (!adaptor::readFile(path.c_str(), text) && errno != ENOENT) {
        say(path + ": cannot read: " + strerror(errno));
    } else if (!text.empty() && !adaptor::parse(text, root, error)) {
        say(path + ": not valid JSON: " + error);
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

// Runs `change` on the file's profile under the lock, and writes the profile back when it says
// so; a file that cannot be used is named once and left alone for the rest of the run.
template <typename Change>
void update(Change change) {
    Run& state = run();
    const char* path = envOrNull("BREL_RECORD");
    if (state.path.empty() && path) state.path = path;
    if (state.broken || state.path.empty()) return;
    int lock = adaptor::lockBeside(state.path);
    if (lock < 0) {
        say(state.path + ": cannot record: " + strerror(errno));
        state.broken = true;
        return;
    }
    Json::Value root;
    state.broken = !load(state, root);
    if (!state.broken && change(root) &&
        !adaptor::replaceFile(state.path, adaptor::profileText(root) + "\n")) {
        say(state.path + ": cannot record: " + strerror(errno));
        state.broken = true;
    }
    close(lock);
}

// create() or an accessor answered null: `word` ("manager", "getPQCtrl") joins "absent".
void absent(const char* word) {
    update([&](Json::Value& root) {
        Json::Value& words = root["absent"];
        for (const Json::Value& each : words)
            if (each.isString() && each.asString() == word) return false;
        words.append(word);
        return true;
    });
}

class Recorder : public adaptor::Backend {
public:
    void lacked(const char* accessor) override { absent(accessor); }

    void answered(const adaptor::Call& call) override {
        if (const char* trace = envOrNull("BREL_RECORD_TRACE")) {
            if (!adaptor::appendLine(trace, call.line()))
                say(std::string("trace ") + trace + ": " + strerror(errno));
        }
        if (call.answer.isNull()) return;
        const std::string key = call.key(), at = call.iface.name + ("." + key);
        Run& state = run();
        std::vector<Json::Value>& answers = state.answers[at];
        answers.push_back(call.answer);
        update([&](Json::Value& root) {
            Json::Value& panel = root[call.iface.name];
            bool mine = state.owned.count(at) > 0;
            if (panel.isMember(key) && !mine) return false;
            state.owned.insert(at);
            bool same = true;
            for (const Json::Value& each : answers) same = same && each == answers.front();
            Json::Value value = answers.front();
            if (!same) {
                value = Json::Value(Json::objectValue);
                Json::Value& list = value["in order"] = Json::Value(Json::arrayValue);
                for (const Json::Value& each : answers) list.append(each);
            }
            if (panel.isMember(key) && panel[key] == value) return false;
            panel[key] = value;
            return true;
        });
    }
};

Recorder& recorder() {
    static Recorder backend;
    return backend;
}

}  // namespace

}  // namespace record

// The recorder's entry for the preloaded front (record/Front.cpp): the library's manager wrapped,
// or null written absent.
extern "C" __attribute__((visibility("default"))) android::IBrelManager* brel_record_wrap(
        android::IBrelManager* real) {
    if (real == nullptr) {
        record::absent("manager");
        return nullptr;
    }
    return adaptor::manager(record::recorder(), real);
}
