#pragma once

// What the test programs share: the built binary started against the simulated panel, and a
// dispatch of the framework in-process with its output captured.

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "Dispatch.h"

namespace dumpbrel_test {

// How to start the binary: the words after "dumpbrel" and what it runs against.
struct Start {
    std::vector<std::string> args;
    std::optional<std::string> panel;         // profile text (BREL_SIM_PANEL); none: built-in
    std::map<std::string, std::string> env;   // more environment, e.g. BREL_SIM_ABSENT
    std::optional<std::string> input;         // standard input; none: /dev/null
    int uid = -1;  // run as this user; -1: as root, through a user namespace when not root
};

// What one run left: its output, the panel's trace and its exit status (128 + the signal when
// it was killed; runs are killed after 30 s).
struct Result {
    std::string out, err, calls;
    int status = -1;
};

Result runBinary(const Start& start);
inline Result runBinary(std::vector<std::string> args) {
    Start start;
    start.args = std::move(args);
    return runBinary(start);
}

// The same run through the binary's entry in a forked child of this process, without exec:
// the same code and panel at a fraction of the cost, for walks over the whole registry.
Result runEntry(const Start& start);
inline Result runEntry(std::vector<std::string> args) {
    Start start;
    start.args = std::move(args);
    return runEntry(start);
}

// Whether a child of this process can run as `uid` (root, or a user namespace).
bool canRunAs(int uid);

// Replaces the process with the binary (through the build's emulator, if any), word 0
// "dumpbrel", on the built-in panel with no trace; as root, through a user namespace when not.
[[noreturn]] void execBinary(const std::vector<std::string>& args);

}  // namespace dumpbrel_test
