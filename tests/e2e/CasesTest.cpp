// The hand-written end-to-end cases of cases.json: the built binary against the simulated panel,
// for what a row does beyond its plain path (fields, ranges, refusals, branches on the service's
// answer) and for the dispatcher. Keys of a case:
//   "name"   what it shows               "args"   the words after "dumpbrel", sub-service first
//   "panel"  the profile (object or raw text; absent: the built-in profile)
//   "env"    more environment            "stdin"  standard input (absent: /dev/null)
//   "uid"    run as this user (root, or a user namespace; skipped where neither works)
//   "out", "err", "calls"  standard output, standard error, the panel's trace: lines (each gets
//            its newline) or one string of exact bytes; absent: nothing at all, null: not checked.
//            The line "@options" stands for the option list of the sub-service args[0], "@usage"
//            for the usage, both as the binary prints them. In "err", "@panel" stands for the
//            profile's file, "@letter x" for the C library's line on the letter x.
//   "status" exit status (absent: 0)

#include <unistd.h>

#include <fstream>
#include <map>
#include <regex>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "Fixtures.h"

namespace dumpbrel_test {
namespace {

using Json = nlohmann::json;

struct Case {
    int index;
    Json row;
};

void PrintTo(const Case& c, std::ostream* os) { *os << c.row.value("name", ""); }

std::vector<Case> loadCases() {
    std::ifstream in(E2E_DIR "/cases.json");
    Json all = Json::parse(in);  // a broken file fails the whole run, loudly
    std::vector<Case> cases;
    for (const Json& row : all) cases.push_back({static_cast<int>(cases.size()), row});
    return cases;
}

// The texts that "@options" and "@usage" stand for, from the binary itself.
const std::string& listing(const std::string& module) {
    static std::map<std::string, std::string> printed;
    auto found = printed.find(module);
    if (found == printed.end())
        found = printed.emplace(module, runBinary({module.empty() ? "-h" : module}).out).first;
    return found->second;
}

std::string expected(const Json& spec, const std::string& module) {
    if (spec.is_string()) return spec.get<std::string>();
    std::string text;
    for (const Json& line : spec) {
        if (line == "@options" || line == "@usage")
            text += listing(line == "@usage" ? "" : module);
        else
            text += line.get<std::string>() + "\n";
    }
    return text;
}

class E2E : public testing::TestWithParam<Case> {};

TEST_P(E2E, Case) {
    const Json& row = GetParam().row;
    Start start;
    start.uid = row.value("uid", -1);
    if (start.uid >= 0 && !canRunAs(start.uid))
        GTEST_SKIP() << "cannot run as uid " << start.uid
                     << " here: not root, and no user namespace to enter";
    start.args = row.value("args", std::vector<std::string>());
    if (row.contains("panel"))
        start.panel = row["panel"].is_string() ? row["panel"].get<std::string>()
                                               : row["panel"].dump();
    start.env = row.value("env", std::map<std::string, std::string>());
    if (row.contains("stdin")) start.input = row["stdin"].get<std::string>();
    Result run = runBinary(start);
    // The panel's problem lines name the profile's file, in a fresh directory each run.
    run.err = std::regex_replace(run.err, std::regex("[^\\s]*/panel\\.json"), "@panel");
    run.err = std::regex_replace(run.err, std::regex("[^\n]* -- '?(.)'?\n"), "@letter $1\n");

    std::string module = start.args.empty() ? "" : start.args[0];
    const std::pair<const char*, const std::string*> texts[] = {
        {"out", &run.out}, {"err", &run.err}, {"calls", &run.calls}};
    for (const auto& [key, actual] : texts) {
        if (row.contains(key) && row[key].is_null()) continue;  // not checked
        EXPECT_EQ(*actual, expected(row.value(key, Json::array()), module)) << "(" << key << ")";
    }
    EXPECT_EQ(run.status, row.value("status", 0));
}

INSTANTIATE_TEST_SUITE_P(Cases, E2E, testing::ValuesIn(loadCases()),
                         [](const testing::TestParamInfo<Case>& info) {
                             return "case_" + std::to_string(info.param.index);
                         });

}  // namespace
}  // namespace dumpbrel_test
