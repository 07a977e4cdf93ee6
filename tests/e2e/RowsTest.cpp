// What holds for every row of every sub-service, walked from the registry so that it follows the
// modules as they change (the runs are RowRuns.h's). What each row prints and calls is pinned by
// the reference of every option, docs/options.md, written from the same runs.

#include <algorithm>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "RowRuns.h"

namespace dumpbrel_test {
namespace {

TEST(Rows, WithTheirInterfaceAbsentAllButHelpReportItAndCallNothing) {
    for (const Module& module : registry()) {
        std::vector<std::string> words = {module.name};
        std::string lines;
        for (const Row& row : module.rows) {
            if (row.longName == "help") continue;
            for (auto& w : rowWords(row, "1")) words.push_back(w);
            lines += module.name + " --" + row.longName +
                     ": service interface not available, not called\n";
        }
        if (words.size() == 1) continue;  // nothing but help
        Start start;
        start.args = words;
        start.env["BREL_SIM_ABSENT"] = "all";
        Result run = runEntry(start);
        EXPECT_EQ(run.out, "") << module.name;
        EXPECT_EQ(run.calls, "") << module.name;
        ASSERT_GE(run.err.size(), lines.size()) << module.name;
        EXPECT_EQ(run.err.substr(run.err.size() - lines.size()), lines);
    }
}

TEST(Rows, ARefusedArgumentIsOneLineNoCallAndTheOptionList) {
    int refused = 0;
    for (const RowRun& run : rowRuns()) {
        const Result& abc = run.abc;
        if (abc.err.empty()) continue;
        ++refused;
        std::string name = run.module.name + " --" + run.row.longName;
        const std::string& list = optionList(run.module.name);
        EXPECT_EQ(std::count(abc.err.begin(), abc.err.end(), '\n'), 1) << name << abc.err;
        EXPECT_EQ(abc.calls, "") << name;
        EXPECT_EQ(abc.out.substr(abc.out.size() - std::min(list.size(), abc.out.size())), list)
            << name;
        // A number the conversions cannot read is named with the option and the text.
        if (abc.err.find("not a number") != std::string::npos) {
            EXPECT_EQ(abc.err.rfind(name + ": not a number: \"", 0), 0u) << abc.err;
        }
    }
    EXPECT_GT(refused, 30);
}

TEST(Rows, TheUsageNamesEverySubServiceInTableOrder) {
    std::string usage = "Usage: dumpbrel <sub_service>\n";
    for (const Module& module : registry())
        usage += (&module == &registry()[0] ? "sub_service: " : "             ") + module.name + "\n";
    EXPECT_EQ(runEntry({"-h"}).out, usage);
}

TEST(Rows, TheOptionListHasALineForEveryRowInTableOrder) {
    for (const Module& module : registry()) {
        std::istringstream list(optionList(module.name));
        std::vector<std::string> lines;  // a help text's further lines left out
        for (std::string line; std::getline(list, line);)
            if (line.rfind("            ", 0) != 0) lines.push_back(line);
        ASSERT_EQ(lines.size(), module.rows.size() + 1) << module.name;
        EXPECT_EQ(lines[0], "Options:") << module.name;
        for (size_t i = 0; i < module.rows.size(); ++i) {
            const Row& row = module.rows[i];
            std::string suffix = argumentSuffix(row.hasArg), form;
            if (!row.shortSpec.empty()) form = "-" + row.shortSpec + suffix;
            if (!row.shortSpec.empty() && !row.longName.empty()) form += ", ";
            if (!row.longName.empty()) form += "--" + row.longName + suffix;
            EXPECT_EQ(lines[i + 1].substr(0, form.size() + 2), form + ": ") << module.name;
        }
    }
}

}  // namespace
}  // namespace dumpbrel_test
