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
//            profile's file, "@state" the memory's (in "env" too), "@letter x" the C library's
//            line on the letter x.
//   "status" exit status (absent: 0)
//   "state"  the memory's file (BREL_SIM_STATE) before the run; null: none
//   "file"   its exact text after the run     "next"  a case run next on the same memory

#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>

#include <filesystem>
#include <fstream>
#include <map>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <json/json.h>

#include "Fixtures.h"

namespace dumpbrel_test {
namespace {


Json::Value parseJson(std::istream& in) {
    Json::Value root;
    Json::CharReaderBuilder builder;
    std::string errors;
    if (!Json::parseFromStream(builder, in, &root, &errors)) ADD_FAILURE() << errors;
    return root;
}

std::string text(const Json::Value& value, const char* key, std::string otherwise = "") {
    return value.isMember(key) ? value[key].asString() : otherwise;
}

struct Case {
    int index;
    Json::Value row;
};

void PrintTo(const Case& c, std::ostream* os) { *os << text(c.row, "name"); }

std::vector<Case> loadCases() {
    std::ifstream in(E2E_DIR "/cases.json");
    Json::Value all = parseJson(in);  // a broken file fails the whole run, loudly
    std::vector<Case> cases;
    for (const Json::Value& row : all) cases.push_back({static_cast<int>(cases.size()), row});
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

std::string expected(const Json::Value& spec, const std::string& module) {
    if (spec.isString()) return spec.asString();
    std::string lines;
    for (const Json::Value& line : spec) {
        if (line == "@options" || line == "@usage")
            lines += listing(line == "@usage" ? "" : module);
        else
            lines += line.asString() + "\n";
    }
    return lines;
}

// Standard error with what differs from run to run written alike: the files of the panel's
// problem lines ("@panel", "@state": each run has a directory of its own), and the C library's
// line on a letter ("@letter x").
std::string stable(const std::string& err) {
    std::string text;
    std::istringstream lines(err);
    for (std::string line; std::getline(lines, line);) {
        for (const char* name : {"panel", "state"}) {
            const std::string file = std::string("/") + name + ".json";
            for (size_t at; (at = line.find(file)) != std::string::npos;) {
                size_t begin = line.find_last_of(" \t", at);
                begin = begin == std::string::npos ? 0 : begin + 1;
                line.replace(begin, at + file.size() - begin, std::string("@") + name);
            }
        }
        size_t dash = line.rfind(" -- ");
        std::string letter = dash == std::string::npos ? "" : line.substr(dash + 4);
        if (letter.size() == 3 && letter.front() == '\'' && letter.back() == '\'') letter = letter.substr(1, 1);
        if (letter.size() == 1) line = "@letter " + letter;
        text += line + "\n";
    }
    return text;
}

class E2E : public testing::TestWithParam<Case> {};

void check(const Json::Value& row, const std::string& state) {
    Start start;
    start.uid = row.get("uid", -1).asInt();
    if (start.uid >= 0 && !canRunAs(start.uid))
        GTEST_SKIP() << "cannot run as uid " << start.uid << " here: "
                     << (getuid() == 0 ? "root of a user namespace that maps no other uid, and no new"
                                       : "not root, and no")
                     << " user namespace to enter";
    for (const Json::Value& word : row["args"]) start.args.push_back(word.asString());
    if (row.isMember("panel"))
        start.panel = row["panel"].isString() ? row["panel"].asString()
                                              : Json::writeString(Json::StreamWriterBuilder(), row["panel"]);
    for (const std::string& name : row["env"].getMemberNames())
        start.env[name] = row["env"][name] == "@state" ? state : row["env"][name].asString();
    if (!state.empty()) start.env["BREL_SIM_STATE"] = state;
    if (row.isMember("state") && !row["state"].isNull())
        std::ofstream(state) << row["state"].asString();
    if (row.isMember("stdin")) start.input = row["stdin"].asString();
    Result run = runBinary(start);
    run.err = stable(run.err);

    std::string module = start.args.empty() ? "" : start.args[0];
    const std::pair<const char*, const std::string*> texts[] = {
        {"out", &run.out}, {"err", &run.err}, {"calls", &run.calls}};
    for (const auto& [key, actual] : texts) {
        if (row.isMember(key) && row[key].isNull()) continue;  // not checked
        EXPECT_EQ(*actual, expected(row.get(key, Json::Value(Json::arrayValue)), module)) << "(" << key << ")";
    }
    EXPECT_EQ(run.status, row.get("status", 0).asInt());
    if (row.isMember("file")) {
        std::ifstream in(state);
        EXPECT_EQ(std::string(std::istreambuf_iterator<char>(in), {}), row["file"].asString());
    }
    if (row.isMember("next")) check(row["next"], state);
}

struct StateDir {
    char dir[28] = "/tmp/dumpbrel-state-XXXXXX";
    std::string state = mkdtemp(dir) + std::string("/state.json");
    ~StateDir() { std::filesystem::remove_all(dir); }
};

TEST_P(E2E, Case) {
    StateDir at;
    check(GetParam().row, GetParam().row.isMember("state") ? at.state : "");
}

INSTANTIATE_TEST_SUITE_P(Cases, E2E, testing::ValuesIn(loadCases()),
                         [](const testing::TestParamInfo<Case>& info) {
                             return "case_" + std::to_string(info.param.index);
                         });

// The files a user keeps: the memory, and a recording of the same runs.
class Memory : public testing::Test, public StateDir {
protected:
    std::string recording = state + ".recorded";
    Start stores(int first) {  // setAudioGain(i, 1) for 25 i from first
        Start start;
        start.args = {"AudioCtrl"};
        start.env = {{"BREL_SIM_STATE", state}, {"BREL_RECORD", recording}};
        for (int i = first; i < first + 25; ++i)
            start.args.insert(start.args.end(), {"-d", std::to_string(i) + ",1"});
        return start;
    }
    size_t stored(const std::string& file) {
        std::ifstream in(file);
        return parseJson(in)["IAudioCtrl"].size();
    }
};

// Half of them through links: the lock is on the file a name leads to.
TEST_F(Memory, EightRunsAtOnceLoseNothing) {
    ASSERT_EQ(symlink("state.json", (state + ".link").c_str()), 0);
    ASSERT_EQ(symlink("state.json.recorded", (recording + ".link").c_str()), 0);
    std::vector<pid_t> runs;
    for (int run = 0; run < 8; ++run) {
        Start start = stores(25 * run);
        if (run % 2) start.env = {{"BREL_SIM_STATE", state + ".link"}, {"BREL_RECORD", recording + ".link"}};
        if ((runs.emplace_back(fork())) == 0) _exit(runBinary(start).status);
    }
    for (pid_t pid : runs) waitpid(pid, nullptr, 0);
    EXPECT_EQ(stored(state) + stored(recording), 400u);
}

// Through a link that stays one; a killed store's leftover goes.
TEST_F(Memory, AKilledRunLeavesAWholeFile) {
    using namespace std::chrono;
    std::ofstream(state + ".t") << "{}";
    std::ofstream(state + ".t.new") << "{\"half";
    ASSERT_EQ(symlink("state.json.t", state.c_str()), 0);
    auto begin = steady_clock::now();
    ASSERT_EQ(runBinary(stores(0)).status, 0);
    EXPECT_FALSE(std::filesystem::exists(state + ".t.new"));
    std::uniform_int_distribution<long> moment(0, (steady_clock::now() - begin) / microseconds(1));
    std::mt19937 random(std::random_device{}());
    for (int kill = 1; kill <= 25; ++kill) {
        pid_t pid = fork();
        if (pid == 0) {
            for (const auto& [name, value] : stores(0).env) setenv(name.c_str(), value.c_str(), 1);
            freopen("/dev/null", "w", stdout);
            execBinary(stores(25 * kill).args);
        }
        usleep(static_cast<useconds_t>(moment(random)));
        ::kill(pid, SIGKILL);
        waitpid(pid, nullptr, 0);
        EXPECT_GE(std::min(stored(state), stored(recording)), 25u);
    }
    EXPECT_TRUE(std::filesystem::is_symlink(state));
}

}  // namespace
}  // namespace dumpbrel_test
