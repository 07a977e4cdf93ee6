#pragma once

// The registry as data: every registered sub-service with its rows, read from the tables the
// modules build, so that the argument sweep and the fuzzers' seed corpus grow with the modules.

#include <string>
#include <vector>

namespace dumpbrel_fuzz {

struct Row {
    std::string shortSpec;  // as registered, colons included; may be empty
    std::string longName;   // without dashes
    int hasArg = 0;         // argument rule of the long form
    std::string help;       // as registered; may be empty or hold newlines
    std::string argument;   // what the argument is made of, as the row names it; may be empty
};

struct Module {
    std::string name;
    std::vector<Row> rows;
};

// Builds a dispatcher of its own, registers every module and copies their tables. Writes
// nothing as long as the simulated panel is present.
std::vector<Module> walkRegistry();

}  // namespace dumpbrel_fuzz
