#pragma once

// What the fuzz targets share: the panel they run against, the tool's entry run in-process,
// and the checks that every input must pass besides the sanitizers' own.

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace dumpbrel_fuzz {

enum class Profile {
    kBuiltIn,  // the simulated panel's built-in profile
    kNeutral,  // the profile "{}": every operation answers neutrally
};

// Once per process, before anything is silenced: becomes a user the tool runs as (root in a user
// namespace of its own when not root; exits with 77 when neither is at hand), keeps a descriptor
// on the real standard error for reports, hands it to the sanitizers, and puts standard input on
// /dev/null.
void setUp();

// Makes the next dispatch read `profile` afresh, with no interface absent and no trace.
void useProfile(Profile profile);

// The same with `text` as the profile in force and, a copy of it, as the panel's memory.
void useProfileText(const std::string& text);

// Runs the binary's entry on "dumpbrel" followed by `words`, exactly as main() would, and stops
// the process with a report when the run leaves the tool in a state no run may leave it in:
// an exit status other than 0, or a standard stream in a failed state.
void runTool(const std::vector<std::string>& words);

// One line on the real standard error.
void report(const char* format, ...) __attribute__((format(printf, 1, 2)));

}  // namespace dumpbrel_fuzz

// Every target's start, defined once here: the harness set up, and libFuzzer's flags as given
// plus -close_fd_mask=3 unless the caller chose a mask, so that the tool's own output goes to
// /dev/null while libFuzzer's and the sanitizers' reports stay visible.
extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv);

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size);
extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv);
