// The recorder changes nothing; its trace is the panel's; its recording replays the same (runs at
// once and killed ones: the memory's tests, which record too). The rules of the files a user
// keeps, the memory's and a recording's alike, one test each.

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

#include <gtest/gtest.h>

#include "RowRuns.h"

namespace dumpbrel_test {
namespace {

std::string text(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

// What a name leads to: a regular file's text, else its kind (reading a FIFO would wait).
std::string what(const std::string& path) {
    auto kind = std::filesystem::status(path).type();
    return kind == std::filesystem::file_type::regular ? text(path) : std::to_string(static_cast<int>(kind));
}

struct Record : testing::Test {
    char dir[29] = "/tmp/dumpbrel-record-XXXXXX";
    std::string at = mkdtemp(dir), file = at + "/panel.json";
    ~Record() override { std::filesystem::remove_all(dir); }

    Start recording(Start start, const std::string& into) {
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

// The files a user keeps, the memory and a recording alike. One that cannot be used is named in
// one line and left as it was, and the run is as without it: read strictly, regular files only
// (never blocking on one), never written where nobody may write.
TEST_F(Record, AFileThatCannotBeUsedIsNamedAndLeftAlone) {
    const std::string fifo = at + "/fifo", strict = at + "/comment.json", deep = at + "/deep.json",
                      locked = at + "/read-only.json", array = at + "/array.json";
    std::filesystem::create_directory(at + "/dir");
    ASSERT_EQ(mkfifo(fifo.c_str(), 0644), 0);
    std::ofstream(strict) << "{\"IPQCtrl\": {}} // kept";
    std::ofstream(deep) << std::string(100, '[') + std::string(100, ']');
    std::ofstream(locked) << "{}";
    std::ofstream(array) << "[1]";
    std::filesystem::permissions(locked, std::filesystem::perms::owner_read);
    Start start;
    start.args = {"PQCtrl", "--setBrightness", "70", "--getBrightness"};
    Result plain = runBinary(start);
    for (const std::string& bad : {at + "/missing/panel.json", array, at + "/dir", fifo,
                                   std::string("/dev/null"), std::string("/proc/self/fd/1"),
                                   strict, deep, locked}) {
        const std::string before = what(bad);
        for (const auto& [variable, says] : {std::pair{"BREL_RECORD", "recorder"},
                                             std::pair{"BREL_SIM_STATE", "simulated panel"}}) {
            Start run = start;
            if (variable == std::string("BREL_RECORD")) run = recording(start, bad);
            run.env[variable] = bad;
            Result result = runBinary(run);
            EXPECT_EQ(result.out + result.calls, plain.out + plain.calls) << variable << " " << bad;
            EXPECT_EQ(result.err.find("dumpbrel: " + std::string(says) + ": " + bad + ": "), 0u)
                    << result.err;
            EXPECT_EQ(std::count(result.err.begin(), result.err.end(), '\n'), 1) << result.err;
            EXPECT_EQ(what(bad), before) << bad;
        }
    }
}

// A file a store or a recording replaces keeps its owner, group and mode; the lock is taken on the
// file a link leads to (the memory's runs at once: tests/e2e/CasesTest.cpp).
TEST_F(Record, AReplacedFileKeepsItsOwnerGroupAndMode) {
    for (const char* variable : {"BREL_RECORD", "BREL_SIM_STATE"}) {
        const std::string kept = at + "/" + variable + ".json";
        std::ofstream(kept) << "{}";
        if (chown(kept.c_str(), 2000, 2000) != 0) GTEST_SKIP() << "cannot give a file to uid 2000 here";
        chmod(kept.c_str(), 0640);
        Start start = recording({}, at + "/unused.json");
        start.args = {"PQCtrl", "--setBrightness", "70"};
        start.env[variable] = kept;
        EXPECT_EQ(runBinary(start).err, "");
        struct stat st;
        ASSERT_EQ(stat(kept.c_str(), &st), 0);
        EXPECT_EQ(std::vector<unsigned>({st.st_uid, st.st_gid, st.st_mode & 07777u}),
                  std::vector<unsigned>({2000, 2000, 0640})) << variable;
        EXPECT_NE(text(kept), "{}") << variable;
    }
}

// One role for one file, in the order profile, memory, recording: a recording named as either is
// not made, and the file is as the other role leaves it.
TEST_F(Record, ARecordingNamedAsTheProfileOrTheMemoryIsNotMade) {
    const std::string memory = at + "/state.json";
    Start start = recording({}, memory);
    start.args = {"PQCtrl", "--setBrightness", "70"};
    start.env["BREL_SIM_STATE"] = memory;
    Result run = runBinary(start);
    EXPECT_EQ(run.err, "dumpbrel: recorder: " + memory + ": named as the panel's memory too "
                       "(BREL_SIM_STATE): nothing recorded\n");
    EXPECT_EQ(text(memory), "{\n  \"IPQCtrl\": {\n    \"getBrightness\": 70\n  }\n}\n");
    const std::string profile = at + "/profile.json";
    std::ofstream(profile) << "{}";
    start = recording({}, profile);
    start.args = {"PQCtrl", "--getBrightness"};
    start.env["BREL_SIM_PANEL"] = profile;
    EXPECT_EQ(runBinary(start).err, "dumpbrel: recorder: " + profile + ": named as the profile too "
                                    "(BREL_SIM_PANEL): nothing recorded\n");
    EXPECT_EQ(text(profile), "{}");
}

// A recording is a run's own: a later run's absence takes nothing away from it and its differing
// answer is named, the recording's kept; it says it is one, and its replay names each call it
// lacks with the neutral answer given.
TEST_F(Record, ARecordingKeepsItsRunsAnswersAndSaysWhatItLacks) {
    Start start = recording({}, file);
    start.args = {"PQCtrl", "--getBrightness"};
    for (const char* brightness : {"1", "2"}) {
        start.panel = std::string("{\"IPQCtrl\": {\"getBrightness\": ") + brightness + "}}";
        EXPECT_EQ(runBinary(start).out, std::string("Got Brightness: ") + brightness + "\n");
    }
    start.env["BREL_SIM_ABSENT"] = "getPQCtrl";
    runBinary(start);
    EXPECT_EQ(text(file), "{\n  \"IPQCtrl\": {\n    \"getBrightness\": 1\n  },\n  \"recorded\": true\n}\n");
    start.env.erase("BREL_SIM_ABSENT");
    Result later = runBinary(start);
    EXPECT_EQ(later.err, "dumpbrel: recorder: " + file + ": IPQCtrl.getBrightness: the recording has "
                         "1, the panel answered 2 (kept the recording's)\n");
    Start replay;
    replay.args = {"PQCtrl", "--getBrightness", "--getContrast"};
    replay.env["BREL_SIM_PANEL"] = file;
    Result again = runBinary(replay);
    EXPECT_EQ(again.out, "Got Brightness: 1\nGot Contrast: 0\n");
    EXPECT_EQ(again.err, "dumpbrel: simulated panel: " + file + ": IPQCtrl.getContrast: not in the "
                         "recording, answered 0\n");
}

// BREL_RECORD_TRACE works alone, and a write of it that fails is named.
TEST_F(Record, TheTraceAloneAndAWriteThatFails) {
    Start start;
    start.args = {"AnionCtrl", "-s", "1"};
    Result plain = runBinary(start);
    start.env = {{"BREL_RECORD_TRACE", at + "/calls"}};
    EXPECT_EQ(runBinary(start).out, plain.out);
    EXPECT_EQ(text(at + "/calls"), plain.calls);
    start.env["BREL_RECORD_TRACE"] = "/dev/full";
    EXPECT_EQ(runBinary(start).err, "dumpbrel: recorder: trace /dev/full: cannot write it: " +
                                            std::string(strerror(ENOSPC)) + "\n");
}

}  // namespace
}  // namespace dumpbrel_test
