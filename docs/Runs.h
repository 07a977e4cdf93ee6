#pragma once

// The runs the reference is learnt from: a row's words through the binary's entry, in a forked
// child, against the simulated panel's built-in profile, each run made once; and what a run shows.

#include <map>
#include <string>
#include <utility>
#include <vector>

#include <json/value.h>

#include "RowRuns.h"

namespace reference {

using dumpbrel_test::Module;
using dumpbrel_test::Result;
using dumpbrel_test::Row;
using Words = std::vector<std::string>;
using Env = std::map<std::string, std::string>;

// One call the panel received, as its trace line tells it.
struct Call {
    std::string interface;  // "IAudioCtrl"
    std::string operation;  // "setAudioGain"
    std::string text;       // "setAudioGain(1, 2)", the interface left out where it is the sub-service's
    Json::Value arguments;  // the in-arguments, where the trace's text of them is JSON
};

class Runs {
public:
    explicit Runs(std::string scratch) : mScratch(std::move(scratch)) {}

    // `words` after the sub-service's name.
    const Result& run(const Module& module, const Words& words, const Env& env = {});
    // With every interface absent: each row reached names itself on standard error.
    const Result& absent(const Module& module, const Words& words);
    // Whether the run printed the option list: its argument refused.
    static bool refused(const Module& module, const Result& result);
    // "refused", or the calls: what tells one run from another.
    static std::string outcome(const Module& module, const Result& result);
    // The calls of a trace, in order.
    static std::vector<Call> calls(const Module& module, const std::string& trace);
    // What the panel's memory keeps of a run of `words`: the getter's key and the value.
    std::vector<std::pair<std::string, std::string>> kept(const Module& module, const Words& words);

private:
    std::string mScratch;
    std::map<std::pair<Words, Env>, Result> mRuns;
};

// The name of the in-parameter `index` of an operation, from the table of the service's shape;
// empty where there is none.
std::string parameterName(const std::string& interface, const std::string& operation, size_t index);

// Whether an operation only reads: its name begins with get, Get, is, Is or read.
bool reads(const std::string& operation);

}  // namespace reference
