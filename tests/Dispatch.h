#pragma once

// The in-process part of the fixtures, the one the device's test module has too: a dispatch of
// the framework with its output captured.

#include <string>
#include <vector>

#include "framework/DumpBrel.h"

namespace dumpbrel_test {

// One dispatch of `dumpBrel` in-process: "dumpbrel" and `words`, output captured.
struct Outcome {
    std::string out, err;
    android::dumpbrel::Status status;
};
Outcome dispatch(android::dumpbrel::DumpBrel& dumpBrel, std::vector<std::string> words);

}  // namespace dumpbrel_test
