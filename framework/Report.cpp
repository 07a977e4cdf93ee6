#include "Report.h"

#include <dlfcn.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <iostream>
#include <sstream>
#include <string>

#include "record/Entry.h"
#include "service/BrelCreator.h"

namespace android {
namespace dumpbrel {
namespace report {

namespace {

struct State {
    ~State() {
        if (plain) std::cout.rdbuf(plain);
    }

    bool read = false;  // the environment, at the first question
    bool json = false;  // BREL_OUTPUT=json, the recorder loaded
    const BrelRecorder* recorder = nullptr;
    std::stringbuf text;  // std::cout's text of the step under way, with `json`
    std::streambuf* plain = nullptr;  // std::cout's own, meanwhile
    long line = 0;
    bool failed = false;  // a step's status was not 0
};

State& state() {
    static State run;
    return run;
}

bool named(const char* variable) {
    const char* value = getenv(variable);
    return value != nullptr && *value != '\0';
}

const BrelRecorder* loadRecorder() {
    void* library = dlopen("libbrel_record.so", RTLD_NOW | RTLD_LOCAL);
    void* entry = library ? dlsym(library, "brel_recorder") : nullptr;
    if (entry == nullptr) {
        fprintf(stderr, "dumpbrel: cannot load the recorder: %s\n", dlerror());
        return nullptr;
    }
    return reinterpret_cast<const BrelRecorder* (*)()>(entry)();
}

State& asked() {
    State& run = state();
    if (run.read) return run;
    run.read = true;
    const char* output = getenv("BREL_OUTPUT");
    bool json = output != nullptr && strcmp(output, "json") == 0;
    if (json || named("BREL_RECORD") || named("BREL_RECORD_TRACE")) run.recorder = loadRecorder();
    run.json = json && run.recorder != nullptr;
    if (run.json) run.plain = std::cout.rdbuf(&run.text);  // the recorder writes the lines
    return run;
}

}  // namespace

sp<IBrelManager> createManager() {
    State& run = asked();
    IBrelManager* manager = BrelCreator::create();
    return run.recorder ? run.recorder->wrap(manager) : manager;
}

void step(const char* option, const char* argument, Status status) {
    State& run = asked();
    if (!run.json) return;
    std::string text = run.text.str();
    if (option == nullptr && text.empty()) return;
    run.text.str(std::string());
    run.failed = run.failed || status != OK;
    run.recorder->step(option, argument, text.data(), text.size(), status, run.line);
}

bool batch() {
    return asked().json && !isatty(0);
}

void line(long number) {
    state().line = number;
}

int exitStatus(int status) {
    State& run = asked();
    return run.json && run.failed ? 1 : status;
}

void reset() {
    State& run = state();
    if (run.plain) std::cout.rdbuf(run.plain);
    run.plain = nullptr;
    run.read = run.json = run.failed = false;
    run.recorder = nullptr;
    run.text.str(std::string());
    run.line = 0;
}

}  // namespace report
}  // namespace dumpbrel
}  // namespace android
