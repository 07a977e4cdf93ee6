// The panel's memory (BREL_SIM_STATE): a profile in a file that the paired setters write into and
// that every call reads before the profile in force. Runs that share the file store under an
// exclusive lock on "<file>.lock", each reading it again and replacing it whole through
// "<file>.new", so a killed run leaves the old file or the new one and no update is lost.

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>

#include "Profiles.h"
#include "adaptor/Files.h"

namespace sim {

namespace {

struct Memory {
    std::string path;   // BREL_SIM_STATE when last read
    Json::Value root;   // what the file holds; null when it cannot be used
};

// Made when BREL_SIM_STATE is first seen: a run without it neither builds it nor registers its
// destructor.
Memory& memory() {
    static Memory state;
    return state;
}

// Whether a store may replace the file that holds `root`: not when it could not be used, nor
// when a member is no object of operations. That is the user's text, which a store would lose;
// it is named, and the rest of the file is read.
bool writable(const std::string& path, const Json::Value& root) {
    bool whole = root.isObject();
    if (whole)
        for (const std::string& name : root.getMemberNames()) {
            if (root[name].isObject() || name == "absent" || name == "recorded") continue;  // named, kept
            whole = false;
            say(path + ": " + name + ": expected an object of operations, got " +
                adaptor::typeName(root[name]));
        }
    return whole;
}

}  // namespace

const Json::Value* recalled(std::string& path) {
    const char* file = getenv("BREL_SIM_STATE");
    if (!file || !*file) return nullptr;
    Memory& state = memory();
    if (state.path != file) {
        state.path = file;
        const char* profile = getenv("BREL_SIM_PANEL");
        if (profile && *profile && adaptor::sameFile(file, profile)) {
            say(state.path + ": named by both BREL_SIM_STATE and BREL_SIM_PANEL: no memory this run");
            state.root = Json::Value();
        } else {
            state.root = readProfile(file, true);
            writable(state.path, state.root);
        }
    }
    path = state.path;
    return state.root.isNull() ? nullptr : &state.root;
}

void forget() {
    if (getenv("BREL_SIM_STATE")) memory() = Memory{};
}

void remember(const adaptor::Call& call) {
    std::string path;
    if (!recalled(path)) return;
    // The getter's key: its name, with the setter's other in-arguments as the trace writes them.
    const unsigned last = call.op.ins - 1;
    std::string key = call.iface.operations[call.op.getter].name;
    if (last > 0) key += "(" + call.argumentsText(0, last) + ")";

    Memory& state = memory();
    std::string why = adaptor::unusable(state.path, true);
    int lock = -1;
    if (why.empty()) why = adaptor::lockBeside(state.path, lock);
    if (!why.empty()) return say(state.path + ": cannot store: " + why);
    Json::Value root = readProfile(state.path.c_str(), true, false);  // its names were checked
    if (writable(state.path, root)) {
        root[call.iface.name][key] = call.arguments[last];
        why = adaptor::replaceFile(state.path, adaptor::profileText(root) + "\n");
        if (!why.empty()) say(state.path + ": cannot store: " + why);
    }
    state.root = std::move(root);  // what the file holds now, others' stores included
    close(lock);
}

}  // namespace sim
