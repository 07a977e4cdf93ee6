// The panel's memory (BREL_SIM_STATE): a profile in a file that the paired setters (kPairs) write
// into and that every call reads before the profile in force. Runs that share the file store
// under an exclusive lock on "<file>.lock", each reading it again and replacing it whole through
// "<file>.new", so a killed run leaves the old file or the new one and no update is lost.

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <string_view>

#include "Files.h"
#include "Profiles.h"

namespace sim {

namespace {

struct Memory {
    std::string path;  // BREL_SIM_STATE when last read
    Json root;         // what the file holds; null when it cannot be used
};

// Made when BREL_SIM_STATE is first seen: a run without it neither builds it nor registers its
// destructor.
Memory& memory() {
    static Memory state{"", nullptr};
    return state;
}

// Whether two names are one file.
bool sameFile(const char* a, const char* b) {
    struct stat first, second;
    if (stat(a, &first) == 0 && stat(b, &second) == 0)
        return first.st_dev == second.st_dev && first.st_ino == second.st_ino;
    return strcmp(a, b) == 0;
}

// Whether a store may replace the file that holds `root`: not when it could not be used, nor
// when a member is no object of operations. That is the user's text, which a store would lose;
// it is named, and the rest of the file is read.
bool writable(const std::string& path, const Json& root) {
    bool whole = root.is_object();
    if (whole)
        for (const auto& member : root.items()) {
            if (member.value().is_object() || member.key() == "absent") continue;  // named, kept
            whole = false;
            say(path + ": " + member.key() + ": expected an object of operations, got " +
                member.value().type_name());
        }
    return whole;
}

}  // namespace

const Json* recalled() {
    const char* path = getenv("BREL_SIM_STATE");
    if (!path || !*path) return nullptr;
    Memory& state = memory();
    if (state.path != path) {
        state.path = path;
        const char* profile = getenv("BREL_SIM_PANEL");
        if (profile && *profile && sameFile(path, profile)) {
            say(state.path + ": named by both BREL_SIM_STATE and BREL_SIM_PANEL: no memory this run");
            state.root = nullptr;
        } else {
            state.root = readProfile(path, true);
            writable(state.path, state.root);
        }
    }
    blame(state.path);
    return state.root.is_null() ? nullptr : &state.root;
}

void forget() {
    if (getenv("BREL_SIM_STATE")) memory() = Memory{"", nullptr};
}

void Panel::remember(const char* iface, const char* op, const std::string& line, size_t last) {
    if (!recalled()) return;
    // The getter, and its key: the other in-arguments as the trace wrote them.
    std::string_view pairs = kPairs;
    std::string head = "\n" + std::string(iface) + " " + op + " ";
    size_t at = pairs.find(head);
    if (at == std::string_view::npos) return;
    at += head.size();
    std::string key(pairs.substr(at, pairs.find('\n', at) - at));
    size_t open = line.find('(');
    if (last > open + 1) key += line.substr(open, last - 2 - open) + ")";
    Json value = Json::parse(line.substr(last, line.size() - 1 - last), nullptr, false);
    if (value.is_discarded()) return;  // a float the trace writes as inf or nan

    Memory& state = memory();
    int lock = lockBeside(state.path);
    if (lock < 0) return say(state.path + ": cannot store: " + strerror(errno));
    Json root = readProfile(state.path.c_str(), true, false);  // its names were checked
    if (writable(state.path, root)) {
        root[iface][key] = value;
        if (!replaceFile(state.path, root.dump(2, ' ', false, Json::error_handler_t::replace) + "\n"))
            say(state.path + ": cannot store: " + strerror(errno));
    }
    state.root = std::move(root);  // what the file holds now, others' stores included
    close(lock);
}

}  // namespace sim
