#include "RowRuns.h"

#include <map>

namespace dumpbrel_test {

const std::vector<Module>& registry() {
    static const std::vector<Module> modules = dumpbrel_fuzz::walkRegistry();
    return modules;
}

const std::string& optionList(const std::string& module) {
    static std::map<std::string, std::string> lists;
    auto found = lists.find(module);
    if (found == lists.end()) found = lists.emplace(module, runEntry({module}).out).first;
    return found->second;
}

std::vector<std::string> rowWords(const Row& row, const std::string& value) {
    if (row.hasArg == 0) return {"--" + row.longName};
    if (row.hasArg == 2) return {"--" + row.longName + "=" + value};
    return {"--" + row.longName, value};
}

namespace {

Result runRow(const Module& module, const Row& row) {
    Start start;
    start.args = rowWords(row, "abc");
    start.args.insert(start.args.begin(), module.name);
    start.panel = "{}";
    return runEntry(start);
}

}  // namespace

const std::vector<RowRun>& rowRuns() {
    static const std::vector<RowRun> runs = [] {
        std::vector<RowRun> all;
        for (const Module& module : registry())
            for (const Row& row : module.rows) {
                all.push_back({module, row, runRow(module, row)});
            }
        return all;
    }();
    return runs;
}

const std::vector<Result>& jsonBatches() {
    static const std::vector<Result> batches = [] {
        std::vector<Result> all;
        for (const Module& module : registry()) {
            Start start;
            start.panel = "{}";
            start.env = {{"BREL_OUTPUT", "json"}};
            start.input = "";
            for (const Row& row : module.rows) {
                *start.input += module.name;
                for (const std::string& word : rowWords(row, "abc")) *start.input += " " + word;
                *start.input += "\n";
            }
            all.push_back(runEntry(start));
        }
        return all;
    }();
    return batches;
}

}  // namespace dumpbrel_test
