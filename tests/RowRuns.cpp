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

Result runRow(const Module& module, const Row& row, std::map<std::string, std::string> env) {
    Start start;
    start.args = rowWords(row, "abc");
    start.args.insert(start.args.begin(), module.name);
    start.panel = "{}";
    start.env = std::move(env);
    return runEntry(start);
}

}  // namespace

const std::vector<RowRun>& rowRuns() {
    static const std::vector<RowRun> runs = [] {
        std::vector<RowRun> all;
        for (const Module& module : registry())
            for (const Row& row : module.rows) {
                all.push_back({module, row, runRow(module, row, {}),
                               runRow(module, row, {{"BREL_OUTPUT", "json"}})});
            }
        return all;
    }();
    return runs;
}

}  // namespace dumpbrel_test
