// The option-table rules on small tables built here, run through the dispatcher in-process.

#include <functional>
#include <regex>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "Dispatch.h"
#include "framework/ListCommand.h"

namespace android {
namespace dumpbrel {
namespace {

using Seen = std::vector<std::string>;
using Body = std::function<Status(const Input&, Seen&)>;

struct Row {
    const char* shortOption;
    const char* longOption;
    int hasArg;
    const char* help = "";
    Status result = OK;
    Body body = nullptr;  // null: the row records "longOption(argument)"
};

struct Fake : RefBase {};  // an interface of the test's own: the service's may grow freely

// A sub-service "T" whose rows record what they were given. Rows with a body run behind the
// null-interface guard, on an interface that is there unless `absent`.
class TableCommand : public ListCommand {
public:
    TableCommand(DumpBrel& parent, std::vector<Row> rows, Seen& seen, bool absent)
        : ListCommand(parent), mRows(std::move(rows)), mSeen(seen) {
        if (!absent) mFake = new Fake;
    }
    std::string getName() const override { return "T"; }
    std::string getSimpleDescription() const override { return "T Module"; }
    Status registerAllOptions() override {
        for (const Row& row : mRows) {
            if (row.body) {
                add(row.shortOption, row.longOption, row.hasArg, mFake,
                    [this, row](Fake&, const Input& in) { return row.body(in, mSeen); },
                    row.help);
                continue;
            }
            addRow(row.shortOption, row.longOption, row.hasArg,
                   [this, row](ListCommand*, const char* arg) {
                       mSeen.push_back(std::string(row.longOption) + "(" + (arg ? arg : "null") +
                                       ")");
                       return row.result;
                   },
                   row.help);
        }
        return OK;
    }

private:
    std::vector<Row> mRows;
    Seen& mSeen;
    sp<Fake> mFake;
};

struct Outcome : dumpbrel_test::Outcome {
    Seen seen;
};

Outcome dispatch(const std::vector<Row>& rows, std::vector<std::string> words,
                 bool absent = false) {
    Outcome run;
    DumpBrel dumpBrel;
    dumpBrel.registerListCommand(std::make_unique<TableCommand>(dumpBrel, rows, run.seen, absent));
    words.insert(words.begin(), "T");
    static_cast<dumpbrel_test::Outcome&>(run) = dumpbrel_test::dispatch(dumpBrel, words);
    return run;
}

const std::vector<Row> kAnion = {{"h", "help", 0, "", USAGE}, {"s:", "setAnionStatus", 1}};
const std::string kAnionList = "Options:\n-h, --help: \n-s:=<arg>, --setAnionStatus=<arg>: \n";

TEST(OptionForms, AllReachTheSameHandlerWithTheSameText) {
    for (std::vector<std::string> words : std::vector<std::vector<std::string>>{
             {"-s", "5"}, {"-s5"}, {"--setAnionStatus", "5"}, {"--setAnionStatus=5"},
             {"--setAnion=5"}}) {
        Outcome run = dispatch(kAnion, words);
        EXPECT_EQ(run.seen, Seen{"setAnionStatus(5)"}) << words[0];
        EXPECT_EQ(run.status, OK);
        EXPECT_EQ(run.out + run.err, "");
    }
}

TEST(OptionForms, HandlersRunInOrderBeforeTheLeftoverWordIsNamed) {
    Outcome run = dispatch(kAnion, {"-s", "1", "bogus", "-s", "2"});
    EXPECT_EQ(run.seen, (Seen{"setAnionStatus(1)", "setAnionStatus(2)"}));
    EXPECT_EQ(run.out, "unknown option: bogus\n" + kAnionList);
    EXPECT_EQ(run.status, USAGE);
}

TEST(HelpRow, StopsParsingAndShowsTheList) {
    Outcome first = dispatch(kAnion, {"-h", "-s", "1"});
    EXPECT_EQ(first.seen, Seen{"help(null)"});
    EXPECT_EQ(first.out, kAnionList);
    Outcome last = dispatch(kAnion, {"-s", "1", "-h"});
    EXPECT_EQ(last.seen, (Seen{"setAnionStatus(1)", "help(null)"}));
    EXPECT_EQ(last.out, kAnionList);
    Outcome none = dispatch(kAnion, {});
    EXPECT_TRUE(none.seen.empty());
    EXPECT_EQ(none.out, kAnionList);
    EXPECT_EQ(none.status, USAGE);
}

// Which row a word reaches, and with what argument: (words, rows seen, start of the output).
TEST(Letters, TheLastRowRunsTheFirstPlaceDecidesTheArgument) {
    const std::vector<Row> shared = {
        {"f", "first", 1}, {"f:", "second", 1}, {"f", "third", 0}, {"f", "fourth", 0}};
    const std::vector<Row> colons = {{"h", "help", 0, "", USAGE}, {"d:::::", "device", 1},
                                     {"x:", "getEQMode", 0}, {"y", "name", 1}};
    const std::vector<Row> words = {{"h", "help", 0, "", USAGE}, {"reset", "reset", 0},
                                    {"getLineInConnectStatus:", "getLineInConnectStatus", 0}};
    struct {
        const std::vector<Row>& rows;
        std::vector<std::string> words;
        Seen seen;
        std::string out;
    } cases[] = {
        {shared, {"-f", "x"}, {"fourth(null)"}, "unknown option: x\nO"},
        {shared, {"--second", "y"}, {"second(y)"}, ""},
        {colons, {"-dVAL"}, {"device(VAL)"}, ""},  // two colons: optional, the rest unread
        {colons, {"-d", "VAL"}, {"device(null)"}, "unknown option: VAL\nO"},
        {colons, {"-x", "5"}, {"getEQMode(5)"}, ""},  // the colon and hasArg may disagree
        {colons, {"--getEQMode"}, {"getEQMode(null)"}, ""},
        {colons, {"--name", "5"}, {"name(5)"}, ""},
        {colons, {"-y", "5"}, {"name(null)"}, "unknown option: 5\nO"},
        {colons, {"--getEQMode=3"}, {}, "unknown option: --getEQMode=3\nO"},
        {words, {"-r"}, {"reset(null)"}, ""},  // every letter passes, the first owns the row
        {words, {"-t"}, {}, "unknown option: -t\nO"},
        {words, {"-g"}, {"getLineInConnectStatus(null)"}, ""},
        {words, {"-s", "x"}, {}, "unknown option: -s\nO"},  // s stood first without a colon
    };
    for (const auto& c : cases) {
        Outcome run = dispatch(c.rows, c.words);
        EXPECT_EQ(run.seen, c.seen) << c.words[0];
        EXPECT_EQ(c.out.empty() ? run.out : run.out.substr(0, c.out.size()), c.out) << c.words[0];
    }
}

// The C library's line on a bad letter, in its own words: one line, ending in the letter.
bool namesLetter(const std::string& err, char letter) {
    return std::regex_match(err, std::regex(std::string("[^\n]*[ ']") + letter + "'?\n"));
}

TEST(Errors, LibraryDiagnosticsThenTheWordBeforeTheCluster) {
    Outcome missing = dispatch(kAnion, {"-s"});
    EXPECT_EQ(missing.out, "unknown option: -s\n" + kAnionList);
    EXPECT_TRUE(namesLetter(missing.err, 's')) << missing.err;
    EXPECT_EQ(dispatch(kAnion, {"-:"}).out.substr(0, 19), "unknown option: -:\n");
    EXPECT_TRUE(namesLetter(dispatch({{"r", "reset", 0}}, {"-t"}).err, 't'));
    // Inside a cluster the scanner has not moved on: the word before the cluster is named.
    Outcome cluster = dispatch({{"h", "help", 0}, {"s:", "set", 1}}, {"-s", "1", "-xh"});
    EXPECT_EQ(cluster.out.substr(0, 18), "unknown option: 1\n");
    EXPECT_TRUE(namesLetter(cluster.err, 'x')) << cluster.err;
}

TEST(Errors, ANonZeroHandlerStopsEverythingBehindIt) {
    Outcome run = dispatch({{"a", "stop", 0, "", 7}, {"b", "after", 0}}, {"-a", "-b"});
    EXPECT_EQ(run.seen, Seen{"stop(null)"});
    EXPECT_EQ(run.status, 7);
}

TEST(Scanner, ADispatchStoppedInsideAClusterLeavesTheNextOneClean) {
    const std::vector<Row> rows = {{"h", "help", 0, "", USAGE}, {"s", "set", 0}};
    EXPECT_EQ(dispatch(rows, {"-hs"}).seen, Seen{"help(null)"});
    Outcome next = dispatch(rows, {"-s"});
    EXPECT_EQ(next.seen, Seen{"set(null)"});
    EXPECT_EQ(next.out, "");
}

TEST(Usage, LayoutOfEveryKindOfRow) {
    const std::vector<Row> rows = {
        {"h", "help", 0, "", USAGE}, {"a", "aa", 0, "\nfirst\nsecond\n"},
        {"b:", "bb", 1, "one\ntwo"}, {"", "cc", 2}, {"s", "", 0, "x"},
    };
    EXPECT_EQ(dispatch(rows, {"--help"}).out,
              "Options:\n-h, --help: \n-a, --aa: \n            first\n            second\n"
              "-b:=<arg>, --bb=<arg>: one\n            two\n--cc[=<arg>]: \n-s: x\n");
}

TEST(Dispatcher, LongOptionsForCompletionKeepTheirDashesAndOrder) {
    DumpBrel dumpBrel;
    Seen seen;
    dumpBrel.registerListCommand(std::make_unique<TableCommand>(dumpBrel, kAnion, seen, false));
    EXPECT_EQ(dumpBrel.getModuleCommands().at("T"), (Seen{"--help", "--setAnionStatus"}));
}

// Rows that read numbers and fields, behind the guard.
Status number(const Input& in, Seen& seen) {
    int value = 0;
    if (!in.toInt(value)) return USAGE;
    seen.push_back(std::to_string(value));
    return OK;
}
Status hexField(const Input& in, Seen& seen) {
    unsigned long value = 0;
    if (!in.toULong(in.fields(1)[0], value, 16)) return USAGE;
    seen.push_back(std::to_string(value));
    return OK;
}
Status fields(const Input& in, Seen& seen) {
    std::vector<std::string> f = in.fields(3);
    seen.push_back(f[0] + "|" + f[1] + "|" + f[2]);
    return OK;
}
const std::vector<Row> kNumbers = {{"h", "help", 0, "", USAGE},
                                   {"n:", "number", 1, "", OK, number},
                                   {"u:", "unsigned", 1, "", OK, hexField},
                                   {"f:", "fields", 1, "", OK, fields}};

TEST(Guard, AMissingInterfaceIsOneLineNoCallAndParsingGoesOn) {
    Outcome run = dispatch(kNumbers, {"-n", "4", "--fields", "x", "-h"}, true);
    EXPECT_EQ(run.seen, Seen{"help(null)"});
    EXPECT_EQ(run.err,
              "T --number: service interface not available, not called\n"
              "T --fields: service interface not available, not called\n");
    EXPECT_EQ(run.out, "Options:\n-h, --help: \n-n:=<arg>, --number=<arg>: \n"
                       "-u:=<arg>, --unsigned=<arg>: \n-f:=<arg>, --fields=<arg>: \n");
}

// (words, what the row read; empty: refused with the line that follows).
TEST(Conversions, WhatStoiAndStoulReadAndTheOneLineForWhatTheyCannot) {
    const std::string high = [] {
        std::string bytes;
        for (int b = 0x80; b <= 0xff; ++b) bytes += static_cast<char>(b);
        return bytes;
    }();
    struct {
        std::vector<std::string> words;
        std::string seen, err;
    } cases[] = {
        {{"-n", " 7x"}, "7", ""},
        {{"-n", "-4"}, "-4", ""},
        {{"-n", "12x,b"}, "12", ""},
        {{"-n", "12\xb2"}, "12", ""},
        {{"-n", "2147483647"}, "2147483647", ""},
        {{"-n", "abc"}, "", "T --number: not a number: \"abc\"\n"},
        {{"-n", ""}, "", "T --number: not a number: \"\"\n"},
        {{"-n", "2147483648"}, "", "T --number: number out of range: \"2147483648\"\n"},
        {{"-n", "-2147483649"}, "", "T --number: number out of range: \"-2147483649\"\n"},
        {{"-n", "a\"\\\n\x7f"}, "", "T --number: not a number: \"a\\x22\\x5c\\x0a\\x7f\"\n"},
        {{"--number", high}, "", "T --number: not a number: \"" + high + "\"\n"},
        {{"-u", "ff,1"}, "255", ""},
        {{"-u", "-1"}, "18446744073709551615", ""},
        {{"-u", "\xff" "1,2"}, "", "T --unsigned: not a number: \"\xff" "1\"\n"},
        {{"-u", "1ffffffffffffffff"}, "", "T --unsigned: number out of range: \"1ffffffffffffffff\"\n"},
        {{"-f", "1,,x,y"}, "1||x", ""},
        {{"-f", "\xe9,\x80\xff,\xa0"}, "\xe9|\x80\xff|\xa0", ""},
        {{"-f", ""}, "||", ""},
    };
    for (const auto& c : cases) {
        Outcome run = dispatch(kNumbers, c.words);
        EXPECT_EQ(run.seen, c.seen.empty() ? Seen{} : Seen{c.seen}) << c.words[1];
        EXPECT_EQ(run.err, c.err) << c.words[1];
        EXPECT_EQ(run.status, c.seen.empty() ? USAGE : OK) << c.words[1];
    }
}

TEST(HighBytes, AsOptionLettersTheyAreUnknownAndRunNothing) {
    for (const char* word : {"-\xe9", "-\xff", "-\x80"}) {
        Outcome run = dispatch(kNumbers, {word});
        EXPECT_EQ(run.status, USAGE) << word;
        EXPECT_TRUE(run.seen.empty()) << word;
        EXPECT_EQ(run.out.rfind(std::string("unknown option: ") + word + "\nOptions:\n", 0), 0u);
    }
    EXPECT_EQ(dispatch(kNumbers, {"-n1\xff"}).seen, Seen{"1"});
}

}  // namespace
}  // namespace dumpbrel
}  // namespace android
