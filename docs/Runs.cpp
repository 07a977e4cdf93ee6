#include "Runs.h"

#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>

#include "adaptor/Json.h"
#include "adaptor/Shape.h"

namespace reference {

const Result& Runs::run(const Module& module, const Words& words, const Env& env) {
    Words all = words;
    all.insert(all.begin(), module.name);
    auto found = mRuns.find({all, env});
    if (found == mRuns.end()) {
        dumpbrel_test::Start start;
        start.args = all;
        start.env = env;
        found = mRuns.emplace(std::make_pair(all, env), dumpbrel_test::runEntry(start)).first;
    }
    return found->second;
}

const Result& Runs::absent(const Module& module, const Words& words) {
    return run(module, words, {{"BREL_SIM_ABSENT", "all"}});
}

bool Runs::refused(const Module& module, const Result& result) {
    return result.out.find(dumpbrel_test::optionList(module.name)) != std::string::npos;
}

std::string Runs::outcome(const Module& module, const Result& result) {
    return refused(module, result) ? std::string("refused") : result.calls;
}

std::vector<Call> Runs::calls(const Module& module, const std::string& trace) {
    std::vector<Call> found;
    std::istringstream lines(trace);
    const std::string own = "I" + module.name;
    for (std::string line; std::getline(lines, line);) {
        line = line.substr(0, line.find(" -> "));
        size_t dot = line.find('.'), open = line.find('(');
        Call call{line.substr(0, dot), line.substr(dot + 1, open - dot - 1), line, Json::Value()};
        if (call.interface == own) call.text = line.substr(dot + 1);
        std::string error;
        adaptor::parse("[" + line.substr(open + 1, line.size() - open - 2) + "]", call.arguments,
                       error);
        found.push_back(std::move(call));
    }
    return found;
}

std::vector<std::pair<std::string, std::string>> Runs::kept(const Module& module,
                                                            const Words& words) {
    const std::string file = mScratch + "/memory-" + std::to_string(getpid()) + ".json";
    std::filesystem::remove(file);
    run(module, words, {{"BREL_SIM_STATE", file}});
    std::ifstream in(file);
    std::string text((std::istreambuf_iterator<char>(in)), {}), error;
    Json::Value memory;
    std::vector<std::pair<std::string, std::string>> found;
    if (!adaptor::parse(text, memory, error) || !memory.isObject()) return found;
    for (const std::string& iface : memory.getMemberNames())
        if (memory[iface].isObject())
            for (const std::string& key : memory[iface].getMemberNames())
                found.push_back(
                        {iface + "." + key, adaptor::profileText(memory[iface][key], true)});
    return found;
}

std::string parameterName(const std::string& interface, const std::string& operation,
                          size_t index) {
    const adaptor::Interface* in = adaptor::kService.find(interface);
    const adaptor::Operation* op = in ? adaptor::Service::find(*in, operation) : nullptr;
    for (unsigned i = 0, seen = 0; op && i < op->count; ++i) {
        if (op->parameters[i].out) continue;
        if (seen++ == index) return op->parameters[i].name;
    }
    return "";
}

bool reads(const std::string& operation) {
    for (const char* prefix : {"get", "Get", "is", "Is", "read"})
        if (operation.rfind(prefix, 0) == 0) return true;
    return false;
}

}  // namespace reference
