// What holds for every row of every sub-service, walked from the registry so that it follows the
// modules as they change (the runs are RowRuns.h's). What each row prints and calls is pinned by
// the reference of every option, docs/options.md, written from the same runs.

#include <algorithm>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <json/json.h>

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

// A trace line, "IName.op(arguments) -> answer", as JSON values: arguments and answer, where the
// trace's text of them is JSON.
Json::Value traced(const std::string& line) {
    Json::Value call(Json::objectValue);
    size_t open = line.find('('), arrow = line.rfind(") -> ");
    size_t close = arrow == std::string::npos ? line.size() - 1 : arrow;
    Json::CharReaderBuilder builder;
    std::unique_ptr<Json::CharReader> reader(builder.newCharReader());
    auto json = [&](const std::string& text) {
        Json::Value value;
        return reader->parse(text.data(), text.data() + text.size(), &value, nullptr) ? value : Json::Value(text);
    };
    call["call"] = line.substr(0, open);
    call["arguments"] = json("[" + line.substr(open + 1, close - open - 1) + "]");
    if (arrow != std::string::npos) call["answer"] = json(line.substr(arrow + 5));
    return call;
}

// With BREL_OUTPUT=json every row's run is its JSON lines (all rows of a sub-service in one batch):
// their outputs joined are the plain run's output, their calls its trace, standard error is the
// same, and the exit status is 1 where a step's status is not 0.
TEST(Rows, AsJsonLinesEveryRunIsItsPlainOutputAndTrace) {
    Json::CharReaderBuilder builder;
    std::unique_ptr<Json::CharReader> reader(builder.newCharReader());
    auto runs = rowRuns().begin();
    for (const Result& batch : jsonBatches()) {
        const Module& module = runs->module;
        std::vector<Json::Value> steps;
        std::istringstream lines(batch.out);
        for (std::string line; std::getline(lines, line);) {
            ASSERT_TRUE(reader->parse(line.data(), line.data() + line.size(), &steps.emplace_back(), nullptr))
                    << line;
            EXPECT_EQ(steps.back().getMemberNames(),
                      std::vector<std::string>({"argument", "calls", "line", "option", "output", "status"}));
        }
        std::string err;
        bool failed = false;
        for (size_t line = 1; line <= module.rows.size(); ++line, ++runs) {
            const RowRun& run = *runs;
            const std::string name = module.name + " --" + run.row.longName;
            std::vector<std::string> trace;
            std::istringstream traceLines(run.abc.calls);
            for (std::string each; std::getline(traceLines, each);) trace.push_back(each);
            std::string joined;
            size_t calls = 0;
            bool rowSeen = false;
            for (const Json::Value& step : steps) {
                if (step["line"].asUInt64() != line) continue;
                joined += step["output"].asString();
                failed = failed || step["status"] != 0;
                rowSeen = rowSeen || step["option"] == run.row.longName;
                for (const Json::Value& call : step["calls"]) {
                    Json::Value got = traced(calls < trace.size() ? trace[calls] : "()");
                    Json::Value expected(Json::objectValue);
                    expected["call"] = call["interface"].asString() + "." + call["operation"].asString();
                    expected["arguments"] = call["arguments"];
                    const Json::Value& answer = call["answer"];  // with out-parameters, the trace has its result
                    if (got.isMember("answer"))
                        expected["answer"] = answer.isObject() && answer.isMember("result") ? answer["result"] : answer;
                    EXPECT_EQ(got, expected) << name;
                    ++calls;
                }
            }
            EXPECT_TRUE(rowSeen) << name;
            EXPECT_EQ(joined, run.abc.out) << name;
            EXPECT_EQ(calls, trace.size()) << name;
            err += run.abc.err;
        }
        EXPECT_EQ(batch.err, err) << module.name;
        EXPECT_EQ(batch.status, failed ? 1 : 0) << module.name;
    }
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
