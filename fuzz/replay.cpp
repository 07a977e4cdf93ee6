// Replays inputs through a fuzz target without libFuzzer, in the ordinary build: every file
// named, and every file in every directory named, in name order. The tool's output goes to
// /dev/null; a finding stops the run with the sanitizers' or the target's report.
//
//     fuzz_arguments_replay fuzz/regressions/arguments

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "Harness.h"

namespace fs = std::filesystem;

int main(int argc, char** argv) {
    std::vector<fs::path> inputs;
    for (int i = 1; i < argc; ++i) {
        std::error_code error;
        if (fs::is_directory(argv[i], error)) {
            for (const auto& entry : fs::directory_iterator(argv[i]))
                if (entry.is_regular_file() && entry.path().filename().string()[0] != '.')
                    inputs.push_back(entry.path());
        } else {
            inputs.push_back(argv[i]);
        }
    }
    std::sort(inputs.begin(), inputs.end());

    dumpbrel_fuzz::setUp();  // exits with 77 (skipped) where the tool cannot be run
    int null = open("/dev/null", O_WRONLY);
    for (const auto& path : inputs) {
        std::ifstream in(path, std::ios::binary);
        if (!in) {
            dumpbrel_fuzz::report("replay: cannot read %s", path.c_str());
            return 1;
        }
        std::string bytes((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
        dumpbrel_fuzz::report("replay: %s", path.c_str());
        dup2(null, 1);
        dup2(null, 2);
        LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t*>(bytes.data()), bytes.size());
    }
    dumpbrel_fuzz::report("replay: %zu inputs, no finding", inputs.size());
    return inputs.empty() ? 1 : 0;
}
