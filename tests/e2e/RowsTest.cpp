// What holds for every row of every sub-service, walked from the registry so that it follows the
// modules as they change; and what every row prints on the built-in panel, compared with the
// listing captured in rows.golden. After a change that is meant to alter what rows print,
// rewrite that listing and read its diff:
//     DUMPBREL_UPDATE_GOLDEN=1 build/tests/e2e_tests --gtest_filter='Rows.*'

#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "Fixtures.h"
#include "fuzz/Registry.h"

namespace dumpbrel_test {
namespace {

using dumpbrel_fuzz::Module;
using dumpbrel_fuzz::Row;

const std::vector<Module>& registry() {
    static const std::vector<Module> modules = dumpbrel_fuzz::walkRegistry();
    return modules;
}

// What a sub-service prints with no option: its option list.
std::string optionList(const std::string& module) {
    return runBinary({module}).out;
}

// The words that reach a row by its long name, with `value` where it takes one.
std::vector<std::string> rowWords(const Row& row, const std::string& value) {
    if (row.hasArg == 0) return {"--" + row.longName};
    if (row.hasArg == 2) return {"--" + row.longName + "=" + value};
    return {"--" + row.longName, value};
}

std::string argumentSuffix(int hasArg) {
    return hasArg == 1 ? "=<arg>" : hasArg == 2 ? "[=<arg>]" : "";
}

// A text on one line: backslash, tab and newline escaped.
std::string escaped(const std::string& text) {
    std::string line;
    for (char c : text) line += c == '\\' ? "\\\\" : c == '\t' ? "\\t" : c == '\n' ? "\\n" : std::string(1, c);
    return line;
}

// Every row reached by its long name, with "1,2,3,4" where it takes an argument, on the built-in
// panel. A record is a line: the row, then standard output, standard error and the calls made,
// tab-separated. The sub-service's option list is written "@options", and calls on its own
// interface (I<sub-service>) without the interface's name.
TEST(Rows, PrintWhatTheGoldenListingHolds) {
    const std::string path = E2E_DIR "/rows.golden";
    std::vector<std::string> golden, actual;
    std::ifstream in(path);
    for (std::string line; std::getline(in, line);) golden.push_back(line);

    for (const Module& module : registry()) {
        std::string list = optionList(module.name), own = "I" + module.name + ".";
        for (const Row& row : module.rows) {
            std::vector<std::string> words = rowWords(row, "1,2,3,4");
            words.insert(words.begin(), module.name);
            Result run = runBinary(words);
            for (size_t at; !list.empty() && (at = run.out.find(list)) != std::string::npos;)
                run.out.replace(at, list.size(), "@options\n");
            for (size_t at; (at = run.calls.find(own)) != std::string::npos;)
                run.calls.erase(at, own.size());
            actual.push_back(module.name + " --" + row.longName + "\t" + escaped(run.out) + "\t" +
                             escaped(run.err) + "\t" + escaped(run.calls));
        }
    }
    if (getenv("DUMPBREL_UPDATE_GOLDEN")) {
        std::ofstream out(path);
        for (const std::string& record : actual) out << record << '\n';
        GTEST_SKIP() << "rewrote " << path;
    }
    for (size_t i = 0; i < actual.size() && i < golden.size(); ++i) EXPECT_EQ(actual[i], golden[i]);
    EXPECT_EQ(actual.size(), golden.size()) << "rows added or taken away: rewrite the listing";
}

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
        Result run = runBinary(start);
        EXPECT_EQ(run.out, "") << module.name;
        EXPECT_EQ(run.calls, "") << module.name;
        ASSERT_GE(run.err.size(), lines.size()) << module.name;
        EXPECT_EQ(run.err.substr(run.err.size() - lines.size()), lines);
    }
}

TEST(Rows, ARefusedArgumentIsOneLineNoCallAndTheOptionList) {
    int refused = 0;
    for (const Module& module : registry()) {
        std::string list = optionList(module.name);
        for (const Row& row : module.rows) {
            if (row.hasArg == 0) continue;
            std::vector<std::string> words = rowWords(row, "abc");
            words.insert(words.begin(), module.name);
            Start start;
            start.args = words;
            start.panel = "{}";
            Result run = runBinary(start);
            if (run.err.empty()) continue;
            ++refused;
            std::string name = module.name + " --" + row.longName;
            EXPECT_EQ(std::count(run.err.begin(), run.err.end(), '\n'), 1) << name << run.err;
            EXPECT_EQ(run.calls, "") << name;
            EXPECT_GE(run.out.size(), list.size()) << name;
            EXPECT_EQ(run.out.substr(run.out.size() - std::min(list.size(), run.out.size())), list)
                << name;
            // A number the conversions cannot read is named with the option and the text.
            if (run.err.find("not a number") != std::string::npos) {
                EXPECT_EQ(run.err.rfind(name + ": not a number: \"", 0), 0u) << run.err;
            }
        }
    }
    EXPECT_GT(refused, 30);
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
