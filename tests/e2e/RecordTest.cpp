// The recorder changes nothing; its trace is the panel's; its recording replays the same (runs at
// once and killed ones: the memory's tests, which record too).

#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <iterator>

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
    // `start` run, recorded, then replayed from the recording alone: the same thrice.
    void recordAndReplay(const Start& start) {
        Result plain = runBinary(start);
        std::filesystem::remove(at + "/state.json");  // the recorded run's memory starts as plain's
        Start recorder = recording(start, file);
        recorder.env["BREL_RECORD_TRACE"] = at + "/calls";
        Result recorded = runBinary(recorder);
        Start replay = start;
        replay.env.clear();
        replay.panel = text(file);
        Result again = runBinary(replay);
        for (const Result* run : {&recorded, &again}) {
            EXPECT_EQ(run->out + run->err, plain.out + plain.err);
            EXPECT_EQ(run->calls, plain.calls);
            EXPECT_EQ(run->status, plain.status);
        }
        EXPECT_EQ(text(at + "/calls"), plain.calls);
    }
};

// Every row in one session of the prompt.
Start everyRow() {
    Start start;
    start.input = "";
    for (const Module& module : registry())
        for (const Row& row : module.rows) {
            *start.input += "\n" + module.name;
            for (const std::string& word : rowWords(row, kSampleArgument)) *start.input += " " + word;
        }
    return start;
}

// Every row over a memory, one interface absent, then a value set and read several times
// (replayed without the memory: in order). A key held before stays.
TEST_F(Record, EveryRowAnswersTheSameRecordedAndReplayed) {
    Start start = everyRow();
    *start.input += "\nAudioCtrl --setEQMode 3 --getEQMode -d 1,9 -c 1\nAudioCtrl --setEQMode 5 --getEQMode\n";
    start.env = {{"BREL_SIM_ABSENT", "getPQCtrl"}, {"BREL_SIM_STATE", at + "/state.json"}};
    std::ofstream(file) << R"-({"IAudioCtrl": {"getAudioGain(2)": 7}})-";
    recordAndReplay(start);
    EXPECT_NE(text(file).find("\"getAudioGain(2)\": 7"), std::string::npos);
}

// The built-in profile is sim/panel.json: named as the profile, it answers every row the same.
TEST_F(Record, TheBuiltInProfileIsTheOneInTheTree) {
    Start start = everyRow();
    Result builtIn = runBinary(start);
    start.env["BREL_SIM_PANEL"] = E2E_DIR "/../../sim/panel.json";
    Result named = runBinary(start);
    EXPECT_EQ(named.out + named.err, builtIn.out + builtIn.err);
    EXPECT_EQ(named.calls, builtIn.calls);
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
        EXPECT_EQ(run.out + run.calls, plain.out + plain.calls);
        EXPECT_EQ(run.status, plain.status);
        EXPECT_EQ(run.err.find("dumpbrel: recorder: " + bad + ": "), 0u) << run.err;
        EXPECT_EQ(std::count(run.err.begin(), run.err.end(), '\n'), 1) << run.err;
    }
    EXPECT_EQ(text(file), "[1]");
}

}  // namespace
}  // namespace dumpbrel_test
