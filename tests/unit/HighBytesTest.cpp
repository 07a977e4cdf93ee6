// Bytes 0x80 to 0xFF through every place that looks at single bytes: key input, the line
// editor, word splitting, completion, option letters and the conversions with their refusal
// line. On arm64 `char` is unsigned and on x86-64 signed; these tests pin the same behaviour on
// both, and run on both (the arm64 build runs them under qemu).

#include <fcntl.h>
#include <unistd.h>

#include <cstdio>
#include <iostream>
#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "framework/DumpBrel.h"
#include "framework/ListCommand.h"
#include "shell/Readline.h"

namespace android {
namespace dumpbrel {
namespace {

std::string highBytes() {
    std::string bytes;
    for (int b = 0x80; b <= 0xff; ++b) bytes += static_cast<char>(b);
    return bytes;
}

// Runs `body` with descriptor 0 reading `keys` and standard output captured.
template <typename Body>
std::string withKeys(const std::string& keys, Body body) {
    int in[2];
    EXPECT_EQ(pipe(in), 0);
    EXPECT_EQ(fcntl(in[1], F_SETPIPE_SZ, 1 << 16) >= 0, true);
    EXPECT_EQ(write(in[1], keys.data(), keys.size()), static_cast<ssize_t>(keys.size()));
    close(in[1]);
    std::cout.flush();
    FILE* captured = tmpfile();
    int savedIn = dup(0), savedOut = dup(1);
    dup2(in[0], 0);
    dup2(fileno(captured), 1);
    close(in[0]);
    body();
    std::cout.flush();
    dup2(savedIn, 0);
    dup2(savedOut, 1);
    close(savedIn);
    close(savedOut);
    rewind(captured);
    std::string output;
    for (int c; (c = fgetc(captured)) != EOF;) output += static_cast<char>(c);
    fclose(captured);
    return output;
}

TEST(HighBytes, ReadKeyGivesEveryByteAsItsValue) {
    std::string all;
    for (int b = 0; b <= 0xff; ++b) all += static_cast<char>(b);
    std::vector<int> keys;
    withKeys(all, [&] {
        Readline readline({});
        for (int key; (key = readline.read_key()) != Readline::kEndOfInput;) keys.push_back(key);
    });
    ASSERT_EQ(keys.size(), 256u);
    for (int b = 0; b <= 0xff; ++b) EXPECT_EQ(keys[b], b);
}

TEST(HighBytes, TheEditorInsertsAndErasesThemOneByteAtATime) {
    const std::string high = highBytes();
    std::vector<std::string> lines;
    // The whole range as one line; then the range with every byte erased again but the first.
    std::string keys = high + "\n" + high + std::string(high.size() - 1, '\x7f') + "\n";
    // And the cursor walked over them: two left, one inserted byte, Enter.
    keys += "\xc3\xa9\xff\033[D\033[Dx\n";
    withKeys(keys, [&] {
        Readline readline({});
        for (;;) {
            std::string line = readline.readline("> ");
            if (readline.end_of_input()) break;
            lines.push_back(line);
        }
    });
    ASSERT_EQ(lines.size(), 3u);
    EXPECT_EQ(lines[0], high);
    EXPECT_EQ(lines[1], "\x80");
    EXPECT_EQ(lines[2], "\xc3x\xa9\xff");
}

TEST(HighBytes, NoneOfThemSplitsWords) {
    // 0x85 and 0xA0 are white space in some encodings, never in the classic locale.
    const std::string high = highBytes();
    EXPECT_EQ(Readline::split_line("a\xa0z \x85q\t" + high),
              (std::vector<std::string>{"a\xa0z", "\x85q", high}));
    EXPECT_EQ(Readline::countWords(high), 1);
}

TEST(HighBytes, CompletionComparesThemExactly) {
    EXPECT_EQ(Readline::find_longest_common_prefix({"\xc3\xa9t\xc3\xa9", "\xc3\xa8re"}), "\xc3");
    EXPECT_EQ(Readline::find_longest_common_prefix({"\xff\x80", "\xff\x80\x81"}), "\xff\x80");
    Readline::Vocabulary vocabulary = {{"\xc3\xa9t\xc3\xa9", {"--\xff\x80one", "--help"}},
                                       {"Anion", {"--help"}}};
    std::string inserted, option;
    withKeys("", [&] {
        Readline readline(vocabulary);
        bool redraw = false, single = false;
        inserted = readline.complete_command("\xc3", redraw, single);
        EXPECT_TRUE(single);
        single = false;
        option = readline.complete_command("\xc3\xa9t\xc3\xa9 --\xff", redraw, single);
        EXPECT_TRUE(single);
    });
    EXPECT_EQ(inserted, "\xa9t\xc3\xa9");
    EXPECT_EQ(option, "\x80one");
}

// A table "H" with a number row, a comma-field row and a plain row.
class HighCommand : public ListCommand {
public:
    HighCommand(DumpBrel& parent, std::vector<std::string>& seen)
        : ListCommand(parent), mSeen(seen) {}
    std::string getName() const override { return "H"; }
    std::string getSimpleDescription() const override { return ""; }
    Status registerAllOptions() override {
        addHelp();
        addRow("n:", "number", kRequired, [this](ListCommand* self, const char* text) {
            Input in(*self, text);
            int value = 0;
            if (!in.toInt(value)) return USAGE;
            mSeen.push_back(std::to_string(value));
            return OK;
        });
        addRow("u:", "unsigned", kRequired, [this](ListCommand* self, const char* text) {
            Input in(*self, text);
            unsigned long value = 0;
            if (!in.toULong(in.fields(1)[0], value, 16)) return USAGE;
            mSeen.push_back(std::to_string(value));
            return OK;
        });
        addRow("f:", "fields", kRequired, [this](ListCommand* self, const char* text) {
            std::vector<std::string> f = Input(*self, text).fields(3);
            mSeen.push_back(f[0] + "|" + f[1] + "|" + f[2]);
            return OK;
        });
        return OK;
    }

private:
    std::vector<std::string>& mSeen;
};

struct Outcome {
    std::vector<std::string> seen;
    std::string out, err;
    Status status;
};

Outcome dispatch(std::vector<std::string> words) {
    Outcome run;
    DumpBrel dumpBrel;
    dumpBrel.registerListCommand(std::make_unique<HighCommand>(dumpBrel, run.seen));
    words.insert(words.begin(), {"dumpbrel", "H"});
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

TEST(HighBytes, ConversionsRefuseThemWithOneLineQuotingThemAsTheyAre) {
    const std::string high = highBytes();
    Outcome run = dispatch({"--number", high});
    EXPECT_EQ(run.status, USAGE);
    EXPECT_TRUE(run.seen.empty());
    EXPECT_EQ(run.err, "H --number: not a number: \"" + high + "\"\n");

    run = dispatch({"-u", "\xff" "1,2"});
    EXPECT_EQ(run.status, USAGE);
    EXPECT_EQ(run.err, "H --unsigned: not a number: \"\xff" "1\"\n");

    // Behind a number they end it, as any other non-digit does.
    run = dispatch({"-n", "12\xb2"});
    EXPECT_EQ(run.seen, (std::vector<std::string>{"12"}));
    EXPECT_EQ(run.err, "");
}

TEST(HighBytes, CommaFieldsKeepThem) {
    Outcome run = dispatch({"-f", "\xe9,\x80\xff,\xa0"});
    EXPECT_EQ(run.seen, (std::vector<std::string>{"\xe9|\x80\xff|\xa0"}));
}

TEST(HighBytes, AsOptionLettersTheyAreUnknownAndRunNothing) {
    for (const char* word : {"-\xe9", "-\xff", "-\x80", "-n1\xff"}) {
        Outcome run = dispatch({word});
        if (std::string(word) == "-n1\xff") {
            EXPECT_EQ(run.seen, (std::vector<std::string>{"1"}));
            continue;
        }
        EXPECT_EQ(run.status, USAGE) << word;
        EXPECT_TRUE(run.seen.empty()) << word;
        EXPECT_EQ(run.out.rfind(std::string("unknown option: ") + word + "\nOptions:\n", 0), 0u)
            << run.out;
    }
}

}  // namespace
}  // namespace dumpbrel
}  // namespace android
