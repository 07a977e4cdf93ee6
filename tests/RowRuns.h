#pragma once

// Every row of the registry run by its long name through the binary's entry: the walk the row
// rules check and from which record/snapshot.txt and the reference of every option
// (docs/options.md) are written.

#include <string>
#include <vector>

#include "Fixtures.h"
#include "fuzz/Registry.h"

namespace dumpbrel_test {

using dumpbrel_fuzz::Module;
using dumpbrel_fuzz::Row;

const std::vector<Module>& registry();

// What a sub-service prints with no option: its option list.
const std::string& optionList(const std::string& module);

// The words that reach a row by its long name, with `value` where it takes one.
std::vector<std::string> rowWords(const Row& row, const std::string& value);

// How the option list writes a row's argument: "=<arg>", "[=<arg>]" or nothing.
inline std::string argumentSuffix(int hasArg) {
    return hasArg == 1 ? "=<arg>" : hasArg == 2 ? "[=<arg>]" : "";
}

// The argument a row is run with where it takes one.
inline const char* const kSampleArgument = "1,2,3,4";

// A row run with "abc" where it takes an argument, on a neutral panel.
struct RowRun {
    const Module& module;
    const Row& row;
    Result abc;
};
const std::vector<RowRun>& rowRuns();

// The same runs of each sub-service's rows as one batch of JSON lines (BREL_OUTPUT=json), a line
// for each row in the order of rowRuns(): a Result for each sub-service, in the registry's order.
const std::vector<Result>& jsonBatches();

}  // namespace dumpbrel_test
