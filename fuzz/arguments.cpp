// Fuzz target over command lines: the input, split at NUL bytes, is the list of words behind
// the tool's name, dispatched in-process through the binary's own entry, once against a
// neutral panel and once against the built-in one.

#include <string>
#include <vector>

#include "Harness.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    dumpbrel_fuzz::setUp();

    // "a\0\0b" is three words, the middle one empty; a final NUL ends the last word.
    std::vector<std::string> words;
    std::string word;
    for (size_t i = 0; i < size; ++i) {
        if (data[i] == 0) {
            words.push_back(word);
            word.clear();
        } else {
            word += static_cast<char>(data[i]);
        }
    }
    if (size > 0 && data[size - 1] != 0) words.push_back(word);

    // No word at all takes the prompt road, which then reads the end of /dev/null.
    for (auto profile : {dumpbrel_fuzz::Profile::kNeutral, dumpbrel_fuzz::Profile::kBuiltIn}) {
        dumpbrel_fuzz::useProfile(profile);
        dumpbrel_fuzz::runTool(words);
    }
    return 0;
}
