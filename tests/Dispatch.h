#pragma once

// What the fixtures hold that runs on the device too.

#include <cstdio>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "framework/DumpBrel.h"

namespace dumpbrel_test {

// One dispatch of `dumpBrel` in-process: "dumpbrel" and `words`, output captured.
struct Outcome {
    std::string out, err;
    android::dumpbrel::Status status;
};
inline Outcome dispatch(android::dumpbrel::DumpBrel& dumpBrel, std::vector<std::string> words) {
    words.insert(words.begin(), "dumpbrel");
    std::vector<char*> argv;
    for (auto& w : words) argv.push_back(w.data());
    argv.push_back(nullptr);
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    Outcome outcome;
    outcome.status =
        dumpBrel.main(android::dumpbrel::Arg{static_cast<int>(words.size()), argv.data()});
    fflush(stdout);
    outcome.out = testing::internal::GetCapturedStdout();
    outcome.err = testing::internal::GetCapturedStderr();
    return outcome;
}

}  // namespace dumpbrel_test
