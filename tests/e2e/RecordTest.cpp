// The recorder over the simulated panel: with it preloaded the tool prints, returns and calls the
// same as without it, its trace is the panel's, and what it wrote, replayed alone, answers the
// same again. Its file is never left half-written and loses nothing to runs at once.

#include <signal.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>

#include <gtest/gtest.h>

#include "RowRuns.h"

namespace dumpbrel_test {
namespace {

std::string text(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

struct Record : testing::Test {
    char dir[29] = "/tmp/dumpbrel-record-XXXXXX";
    std::string at = mkdtemp(dir), file = at + "/panel.json";
    ~Record() override { std::filesystem::remove_all(dir); }

    Start recording(Start start, const std::string& into) {
        start.env["LD_PRELOAD"] = RECORD_LIB;
        start.env["BREL_RECORD"] = into;
        return start;
    }
    // `start` run as it is, recorded, then replayed from the recording alone: the same thrice.
    void recordAndReplay(const Start& start) {
        Result plain = runBinary(start);
        Start recorder = recording(start, file);
        recorder.env["BREL_RECORD_TRACE"] = at + "/calls";
        Result recorded = runBinary(recorder);
        Start replay;
        replay.input = start.input;
        replay.args = start.args;
        replay.panel = text(file);
        Result again = runBinary(replay);
        for (const Result* run : {&recorded, &again}) {
            EXPECT_EQ(run->out, plain.out);
            EXPECT_EQ(run->err, plain.err);
            EXPECT_EQ(run->calls, plain.calls);
            EXPECT_EQ(run->status, plain.status);
        }
        EXPECT_EQ(text(at + "/calls"), plain.calls);
    }
};

// Every row of the registry in one session of the prompt, one interface absent.
TEST_F(Record, EveryRowAnswersTheSameRecordedAndReplayed) {
    Start start;
    start.input = "";
    for (const Module& module : registry())
        for (const Row& row : module.rows) {
            start.input->append(module.name);
            for (const std::string& word : rowWords(row, kSampleArgument)) *start.input += " " + word;
            *start.input += "\n";
        }
    start.env["BREL_SIM_ABSENT"] = "getPQCtrl";
    recordAndReplay(start);
}

// One value set and read back several times over a memory: the recording answers in order.
TEST_F(Record, AMemorySessionReplaysWithoutTheMemory) {
    Start start;
    start.input = "AudioCtrl --setEQMode 3 --getEQMode\nAudioCtrl -d 1,9 --getEQMode --getAudioGain 1\n"
                  "AudioCtrl --setEQMode 5 --getEQMode --getEQMode\n";
    start.env["BREL_SIM_STATE"] = at + "/state.json";
    recordAndReplay(start);
}

// Eight runs at once each add their keys; a key the file held before stays as it was.
TEST_F(Record, RunsAtOnceLoseNothingAndKeepWhatTheFileHeld) {
    std::ofstream(file) << R"({"IPQCtrl": {"getBrightness": 7}})";
    std::vector<pid_t> runs;
    for (int run = 0; run < 8; ++run) {
        Start start = recording(Start(), file);
        start.args = {"GpioCtrl"};
        for (int gpio = 10 * run; gpio < 10 * run + 10; ++gpio)
            start.args.insert(start.args.end(), {"--readGpioBit", std::to_string(gpio)});
        if (run == 0) start.args = {"PQCtrl", "--getBrightness"};
        if ((runs.emplace_back(fork())) == 0) _exit(runBinary(start).status);
    }
    for (pid_t pid : runs) waitpid(pid, nullptr, 0);
    std::string recorded = text(file);
    for (int gpio = 10; gpio < 80; ++gpio)
        EXPECT_NE(recorded.find("\"readGpioBit(" + std::to_string(gpio) + ")\""), std::string::npos);
    EXPECT_NE(recorded.find("\"getBrightness\": 7"), std::string::npos) << recorded;
}

// Killed at any moment, a run leaves the file whole: what it held, and a complete profile.
TEST_F(Record, AKilledRunLeavesAWholeFile) {
    Start first;
    first.args = {"PQCtrl", "--getBrightness"};
    ASSERT_EQ(runBinary(recording(first, file)).status, 0);
    std::mt19937 random(std::random_device{}());
    std::uniform_int_distribution<useconds_t> moment(0, 20000);
    for (int kill = 0; kill < 20; ++kill) {
        std::vector<std::string> args = {"GpioCtrl"};
        for (int gpio = 0; gpio < 40; ++gpio)
            args.insert(args.end(), {"--readGpioBit", std::to_string(gpio + 40 * kill)});
        pid_t pid = fork();
        if (pid == 0) {
            setenv("BREL_RECORD", file.c_str(), 1);
            preload(RECORD_LIB);
            freopen("/dev/null", "w", stdout);
            execBinary(args);
        }
        usleep(moment(random));
        ::kill(pid, SIGKILL);
        waitpid(pid, nullptr, 0);
    }
    Start check;
    check.panel = text(file);
    check.args = {"PQCtrl", "--getBrightness"};
    EXPECT_EQ(runBinary(check).err, "");
}

// A file it cannot use: one line naming it, the file as it was, the run as without the recorder.
TEST_F(Record, AFileItCannotUseIsNamedAndLeftAlone) {
    std::filesystem::create_directory(at + "/dir");
    std::ofstream(file) << "[1]";
    Start start;
    start.args = {"PQCtrl", "--getBrightness", "--getContrast"};
    Result plain = runBinary(start);
    for (const std::string& bad : {at + "/missing/panel.json", file, at + "/dir"}) {
        Result run = runBinary(recording(start, bad));
        EXPECT_EQ(run.out, plain.out);
        EXPECT_EQ(run.calls, plain.calls);
        EXPECT_EQ(run.status, plain.status);
        EXPECT_EQ(run.err.find("dumpbrel: recorder: " + bad + ": "), 0u) << run.err;
        EXPECT_EQ(std::count(run.err.begin(), run.err.end(), '\n'), 1) << run.err;
    }
    EXPECT_EQ(text(file), "[1]");
    EXPECT_FALSE(std::filesystem::exists(at + "/missing"));
}

}  // namespace
}  // namespace dumpbrel_test
