// The recorder's library, libbrel_record.so, loaded by the tool when a run asks for it: the
// generated adaptor over the vendor's library, with one backend that sees every call pass and,
// as the run asks, appends its trace line (BREL_RECORD_TRACE), records its answer
// (BREL_RECORD) and keeps it for the JSON line of the step it belongs to (BREL_OUTPUT=json).

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <set>
#include <string_view>

#include "Entry.h"
#include "Recorder.h"
#include "adaptor/Files.h"

namespace record {

const char* envOrNull(const char* name) {
    const char* value = getenv(name);
    return value && *value ? value : nullptr;
}

void say(const std::string& what) {
    static std::set<std::string> said;
    std::string line = "dumpbrel: recorder: " + what + "\n";
    if (said.insert(line).second) fputs(line.c_str(), stderr);
}

namespace {

std::string textOrNull(const char* text) {
    return text ? adaptor::jsonString(text) : "null";
}

class Observer : public adaptor::Backend {
public:
    Observer() {
        const char* output = getenv("BREL_OUTPUT");
        mReporting = output && strcmp(output, "json") == 0;
    }

    void lacked(const char* accessor) override { recordAbsent(accessor); }

    void answered(const adaptor::Call& call) override {
        if (const char* trace = envOrNull("BREL_RECORD_TRACE")) {
            std::string why = adaptor::appendLine(trace, call.line());
            if (!why.empty()) say(std::string("trace ") + trace + ": " + why);
        }
        recordAnswer(call);
        if (!mReporting) return;
        // {"interface": "IAudioCtrl", "operation": "setAudioGain", "arguments": [1, 30], "answer": 0}
        if (!mCalls.empty()) mCalls += ", ";
        mCalls += "{\"interface\": " + adaptor::jsonString(call.iface.name) +
                  ", \"operation\": " + adaptor::jsonString(call.op.name) +
                  ", \"arguments\": " + adaptor::profileText(call.arguments, true) +
                  ", \"answer\": " + adaptor::profileText(call.answer, true) + "}";
    }

    // {"line": 1, "option": "setAudioGain", "argument": "1,30", "output": "...", "calls": [...],
    // "status": 0}, "line" in a batch only.
    void step(const char* option, const char* argument, std::string_view output, int status,
              long line) {
        std::string text = "{";
        if (line > 0) text += "\"line\": " + std::to_string(line) + ", ";
        text += "\"option\": " + textOrNull(option) + ", \"argument\": " + textOrNull(argument) +
                ", \"output\": " + adaptor::jsonString(output) + ", \"calls\": [" + mCalls +
                "], \"status\": " + std::to_string(status) + "}\n";
        mCalls.clear();
        fputs(text.c_str(), stdout);
        fflush(stdout);
    }

private:
    bool mReporting;
    std::string mCalls;  // the calls of the step under way, as its line lists them
};

Observer& observer() {
    static Observer backend;
    return backend;
}

android::IBrelManager* wrap(android::IBrelManager* real) {
    if (real == nullptr) {
        recordAbsent("manager");
        return nullptr;
    }
    return adaptor::manager(observer(), real);
}

void step(const char* option, const char* argument, const char* output, size_t size, int status,
          long line) {
    observer().step(option, argument, std::string_view(output, size), status, line);
}

}  // namespace

}  // namespace record

extern "C" __attribute__((visibility("default"))) const BrelRecorder* brel_recorder() {
    static const BrelRecorder entry{&record::wrap, &record::step};
    return &entry;
}
