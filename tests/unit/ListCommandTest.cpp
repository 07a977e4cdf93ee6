// The option-table rules on small tables built here, run through the dispatcher in-process.

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "framework/DumpBrel.h"
#include "framework/ListCommand.h"
#include "service/IAnionCtrl.h"

namespace android {
namespace dumpbrel {
namespace {

struct Row {
    const char* shortOption;
    const char* longOption;
    int hasArg;
    const char* help = "";
    Status result = OK;
};

// A sub-service "T" whose rows record what their handlers were given.
class TableCommand : public ListCommand {
public:
    TableCommand(DumpBrel& parent, std::vector<Row> rows, std::vector<std::string>& calls)
        : ListCommand(parent), mRows(std::move(rows)), mCalls(calls) {}
    std::string getName() const override { return "T"; }
    std::string getSimpleDescription() const override { return "T Module"; }
    Status registerAllOptions() override {
        for (const Row& row : mRows) {
            addRow(row.shortOption, row.longOption, row.hasArg,
                   [this, row](ListCommand*, const char* arg) {
                       mCalls.push_back(std::string(row.longOption) + "(" +
                                        (arg ? arg : "null") + ")");
                       return row.result;
                   },
                   row.help);
        }
        return OK;
    }

private:
    std::vector<Row> mRows;
    std::vector<std::string>& mCalls;
};

struct Outcome {
    std::vector<std::string> calls;
    std::string out;
    std::string err;
    Status status;
};

Outcome dispatch(const std::vector<Row>& rows, std::vector<std::string> words) {
    Outcome run;
    DumpBrel dumpBrel;
    dumpBrel.registerListCommand(std::make_unique<TableCommand>(dumpBrel, rows, run.calls));
    words.insert(words.begin(), {"dumpbrel", "T"});
    std::vector<char*> argv;
    for (auto& w : words) argv.push_back(w.data());
    argv.push_back(nullptr);
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    run.status = dumpBrel.main(Arg{static_cast<int>(words.size()), argv.data()});
    fflush(stdout);
    run.out = testing::internal::GetCapturedStdout();
    run.err = testing::internal::GetCapturedStderr();
    return run;
}

const std::vector<Row> kAnion = {{"h", "help", 0, "", USAGE}, {"s:", "setAnionStatus", 1}};
const std::string kAnionList = "Options:\n-h, --help: \n-s:=<arg>, --setAnionStatus=<arg>: \n";

TEST(OptionForms, AllReachTheSameHandlerWithTheSameText) {
    for (std::vector<std::string> words : std::vector<std::vector<std::string>>{
             {"-s", "5"}, {"-s5"}, {"--setAnionStatus", "5"}, {"--setAnionStatus=5"},
             {"--setAnion=5"}}) {
        Outcome run = dispatch(kAnion, words);
        EXPECT_EQ(run.calls, std::vector<std::string>{"setAnionStatus(5)"}) << words[0];
        EXPECT_EQ(run.status, OK);
        EXPECT_EQ(run.out, "");
    }
}

TEST(OptionForms, HandlersRunInCommandLineOrderBeforeTheLeftoverWord) {
    Outcome run = dispatch(kAnion, {"-s", "1", "bogus", "-s", "2"});
    EXPECT_EQ(run.calls, (std::vector<std::string>{"setAnionStatus(1)", "setAnionStatus(2)"}));
    EXPECT_EQ(run.out, "unknown option: bogus\n" + kAnionList);
    EXPECT_EQ(run.status, USAGE);
}

TEST(HelpRow, StopsParsingAndShowsTheList) {
    Outcome first = dispatch(kAnion, {"-h", "-s", "1"});
    EXPECT_EQ(first.calls, std::vector<std::string>{"help(null)"});
    EXPECT_EQ(first.out, kAnionList);
    Outcome last = dispatch(kAnion, {"-s", "1", "-h"});
    EXPECT_EQ(last.calls, (std::vector<std::string>{"setAnionStatus(1)", "help(null)"}));
    EXPECT_EQ(last.out, kAnionList);
}

TEST(HelpRow, NoOptionAtAllShowsTheListOnly) {
    Outcome run = dispatch(kAnion, {});
    EXPECT_TRUE(run.calls.empty());
    EXPECT_EQ(run.out, kAnionList);
    EXPECT_EQ(run.status, USAGE);
}

TEST(SharedLetters, TheLastRowRunsAndTheFirstPlaceDecidesTheArgument) {
    const std::vector<Row> rows = {
        {"f", "first", 1}, {"f:", "second", 1}, {"f", "third", 0}, {"f", "fourth", 0}};
    Outcome run = dispatch(rows, {"-f", "x"});
    EXPECT_EQ(run.calls, std::vector<std::string>{"fourth(null)"});
    EXPECT_EQ(run.out.substr(0, 19), "unknown option: x\nO");
    Outcome longForm = dispatch(rows, {"--second", "y"});
    EXPECT_EQ(longForm.calls, std::vector<std::string>{"second(y)"});
}

TEST(SpecColons, DoubleColonIsOptionalAndLaterColonsAreNeverRead) {
    const std::vector<Row> rows = {{"h", "help", 0, "", USAGE}, {"d:::::", "device", 1}};
    EXPECT_EQ(dispatch(rows, {"-dVAL"}).calls, std::vector<std::string>{"device(VAL)"});
    Outcome separate = dispatch(rows, {"-d", "VAL"});
    EXPECT_EQ(separate.calls, std::vector<std::string>{"device(null)"});
    EXPECT_EQ(separate.out.substr(0, 21), "unknown option: VAL\nO");
}

TEST(SpecColons, ColonAndHasArgDisagree) {
    const std::vector<Row> rows = {
        {"h", "help", 0, "", USAGE}, {"x:", "getEQMode", 0}, {"y", "name", 1}};
    EXPECT_EQ(dispatch(rows, {"-x", "5"}).calls, std::vector<std::string>{"getEQMode(5)"});
    EXPECT_EQ(dispatch(rows, {"--getEQMode"}).calls, std::vector<std::string>{"getEQMode(null)"});
    EXPECT_EQ(dispatch(rows, {"--name", "5"}).calls, std::vector<std::string>{"name(5)"});
    Outcome shortY = dispatch(rows, {"-y", "5"});
    EXPECT_EQ(shortY.calls, std::vector<std::string>{"name(null)"});
    EXPECT_EQ(shortY.out.substr(0, 19), "unknown option: 5\nO");
    Outcome argToNone = dispatch(rows, {"--getEQMode=3"});
    EXPECT_TRUE(argToNone.calls.empty());
    EXPECT_EQ(argToNone.out.substr(0, 31), "unknown option: --getEQMode=3\nO");
    EXPECT_NE(argToNone.err, "");
}

TEST(MultiLetterSpecs, EveryLetterPassesButOnlyTheFirstOwnsARow) {
    const std::vector<Row> rows = {{"h", "help", 0, "", USAGE}, {"reset", "reset", 0},
                                   {"getLineInConnectStatus:", "getLineInConnectStatus", 0}};
    EXPECT_EQ(dispatch(rows, {"-r"}).calls, std::vector<std::string>{"reset(null)"});
    Outcome t = dispatch(rows, {"-t"});
    EXPECT_TRUE(t.calls.empty());
    EXPECT_EQ(t.out.substr(0, 19), "unknown option: -t\n");
    EXPECT_EQ(t.err, "");  // the library accepted the letter
    EXPECT_EQ(dispatch(rows, {"-g"}).calls, std::vector<std::string>{"getLineInConnectStatus(null)"});
    // The colon belongs to the final s, which stood earlier without one: s takes no argument.
    EXPECT_EQ(dispatch(rows, {"-s", "x"}).out.substr(0, 19), "unknown option: -s\n");
}

TEST(Errors, LibraryDiagnosticsThenTheWordBeforeTheCluster) {
    Outcome missing = dispatch(kAnion, {"-s"});
    EXPECT_EQ(missing.out, "unknown option: -s\n" + kAnionList);
    EXPECT_EQ(missing.err, "dumpbrel: option requires an argument -- 's'\n");
    Outcome colon = dispatch(kAnion, {"-:"});
    EXPECT_EQ(colon.out.substr(0, 19), "unknown option: -:\n");
    // Inside a cluster the scanner has not moved on: the word before the cluster is named.
    Outcome cluster = dispatch({{"h", "help", 0}, {"s:", "set", 1}}, {"-s", "1", "-xh"});
    EXPECT_EQ(cluster.out.substr(0, 18), "unknown option: 1\n");
    EXPECT_EQ(cluster.err, "dumpbrel: invalid option -- 'x'\n");
}

TEST(Errors, ANonZeroHandlerStopsEverythingBehindIt) {
    const std::vector<Row> rows = {{"a", "stop", 0, "", 7}, {"b", "after", 0}};
    Outcome run = dispatch(rows, {"-a", "-b"});
    EXPECT_EQ(run.calls, std::vector<std::string>{"stop(null)"});
    EXPECT_EQ(run.status, 7);
}

TEST(Scanner, ADispatchStoppedInsideAClusterLeavesTheNextOneClean) {
    const std::vector<Row> rows = {{"h", "help", 0, "", USAGE}, {"s", "set", 0}};
    Outcome stopped = dispatch(rows, {"-hs"});
    EXPECT_EQ(stopped.calls, std::vector<std::string>{"help(null)"});
    Outcome next = dispatch(rows, {"-s"});
    EXPECT_EQ(next.calls, std::vector<std::string>{"set(null)"});
    EXPECT_EQ(next.out, "");
}

TEST(Usage, LayoutOfEveryKindOfRow) {
    const std::vector<Row> rows = {
        {"h", "help", 0, "", USAGE},
        {"a", "aa", 0, "\nfirst\nsecond\n"},
        {"b:", "bb", 1, "one\ntwo"},
        {"", "cc", 2},
        {"s", "", 0, "x"},
    };
    Outcome run = dispatch(rows, {"--help"});
    EXPECT_EQ(run.out,
              "Options:\n"
              "-h, --help: \n"
              "-a, --aa: \n"
              "            first\n"
              "            second\n"
              "-b:=<arg>, --bb=<arg>: one\n"
              "            two\n"
              "--cc[=<arg>]: \n"
              "-s: x\n");
}

TEST(Dispatcher, LongOptionsForCompletionKeepTheirDashesAndOrder) {
    DumpBrel dumpBrel;
    std::vector<std::string> calls;
    dumpBrel.registerListCommand(std::make_unique<TableCommand>(dumpBrel, kAnion, calls));
    auto commands = dumpBrel.getModuleCommands();
    EXPECT_EQ(commands.at("T"), (std::vector<std::string>{"--help", "--setAnionStatus"}));
}

// A row that needs the service goes through the guard when the interface is missing.
class GuardedCommand : public ListCommand {
public:
    GuardedCommand(DumpBrel& parent, std::vector<std::string>& seen)
        : ListCommand(parent), mSeen(seen) {}
    std::string getName() const override { return "G"; }
    std::string getSimpleDescription() const override { return ""; }
    Status registerAllOptions() override {
        add("s:", "setAnionStatus", kRequired, mAnionCtrl, [](IAnionCtrl&, const Input&) {
            return OK;
        });
        add("n:", "number", kRequired, mSelf, [this](IAnionCtrl&, const Input& in) {
            int value = 0;
            if (!in.toInt(std::string(in.text), value)) return USAGE;
            mSeen.push_back(std::to_string(value));
            std::vector<std::string> f = in.fields(3);
            mSeen.push_back(f[0] + "|" + f[1] + "|" + f[2]);
            return OK;
        });
        return OK;
    }
    sp<IAnionCtrl> mAnionCtrl;  // never filled
    sp<IAnionCtrl> mSelf;

private:
    std::vector<std::string>& mSeen;
};

class FakeAnion : public IAnionCtrl {
public:
    int setAnionStatus(int) override { return 0; }
};

Outcome dispatchGuarded(std::vector<std::string> words, std::vector<std::string>& seen) {
    Outcome run;
    DumpBrel dumpBrel;
    auto command = std::make_unique<GuardedCommand>(dumpBrel, seen);
    command->mSelf = new FakeAnion;
    dumpBrel.registerListCommand(std::move(command));
    words.insert(words.begin(), {"dumpbrel", "G"});
    std::vector<char*> argv;
    for (auto& w : words) argv.push_back(w.data());
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    run.status = dumpBrel.main(Arg{static_cast<int>(words.size()), argv.data()});
    fflush(stdout);
    run.out = testing::internal::GetCapturedStdout();
    run.err = testing::internal::GetCapturedStderr();
    return run;
}

TEST(Guard, AMissingInterfaceIsReportedOnceAndParsingGoesOn) {
    std::vector<std::string> seen;
    Outcome run = dispatchGuarded({"-s", "1", "-n", "4"}, seen);
    EXPECT_EQ(run.err, "G --setAnionStatus: service interface not available, not called\n");
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(seen, (std::vector<std::string>{"4", "4||"}));
}

TEST(Conversions, TextStoiCannotReadIsRefusedWithOneLine) {
    struct Case {
        const char* text;
        const char* seen;  // null: refused
    } cases[] = {{" 7x", "7"}, {"-4", "-4"}, {"12x,b,c", "12"}, {"abc", nullptr},
                 {"", nullptr}, {"2147483648", nullptr}, {"-2147483649", nullptr}};
    for (const auto& c : cases) {
        std::vector<std::string> seen;
        Outcome run = dispatchGuarded({"-n", c.text}, seen);
        if (c.seen) {
            ASSERT_FALSE(seen.empty()) << c.text;
            EXPECT_EQ(seen[0], c.seen);
            EXPECT_EQ(run.err, "");
        } else {
            EXPECT_TRUE(seen.empty()) << c.text;
            EXPECT_EQ(run.status, USAGE);
            EXPECT_EQ(std::count(run.err.begin(), run.err.end(), '\n'), 1) << run.err;
            EXPECT_NE(run.err.find("G --number: "), std::string::npos) << run.err;
            EXPECT_NE(run.err.find(std::string("\"") + c.text + "\""), std::string::npos);
        }
    }
}

TEST(Conversions, CommaFieldsStopAtTheirCountAndStayEmptyWhenMissing) {
    std::vector<std::string> seen;
    dispatchGuarded({"-n", "1,,x,y"}, seen);
    EXPECT_EQ(seen.at(1), "1||x");
}

}  // namespace
}  // namespace dumpbrel
}  // namespace android
