// The line editor fed through a pipe: exact bytes written for key sequences.

#include <fcntl.h>
#include <unistd.h>

#include <cstdio>
#include <iostream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "shell/Readline.h"

using android::dumpbrel::Readline;

namespace {

const std::string kPrompt = "dumpbrel > ";
const std::string P = "\033[49;34m" + kPrompt + "\033[0m";  // the prompt at a new line
const std::string END = P + "\n";                           // a prompt met by the end of input
const std::string UP = "\033[A", DOWN = "\033[B", RIGHT = "\033[C", LEFT = "\033[D";

// The line rewritten, then the cursor moved back `back` bytes.
std::string R(const std::string& line, int back = 0) {
    std::string s = "\033[2K\r\033[49;34m" + kPrompt + line + "\033[0m";
    if (back) s += "\033[" + std::to_string(back) + "D";
    return s;
}
// The redraws of typing `text` key by key at the end of an empty line.
std::string typed(const std::string& text) {
    std::string s;
    for (size_t n = 1; n <= text.size(); ++n) s += R(text.substr(0, n));
    return s;
}
std::string green(const std::string& w) { return "\033[49;32m" + w + "\033[0m\n"; }
std::string magenta(const std::string& w) { return "\033[49;35m" + w + "\033[0m\n"; }

const Readline::Vocabulary kVocabulary = {
    {"AnionCtrl", {"--help", "--setAnionStatus"}},
    {"AudioCtrl", {"--help", "--getAudioGain", "--getAudioDelay", "--setAudioGain"}},
    {"AvManager", {"--help", "--getSN"}},
    {"PQCtrl", {"--help"}},
};

// The names in the order the editor's copy of the vocabulary lists them.
std::string allNames() {
    std::string s;
    for (const auto& entry : Readline::Vocabulary(kVocabulary)) s += green(entry.first);
    return s;
}
std::string namesStartingWithA() {
    std::string s;
    for (const auto& entry : Readline::Vocabulary(kVocabulary))
        if (entry.first[0] == 'A') s += green(entry.first);
    return s;
}
std::string options(const std::string& name) {
    std::string s;
    for (const auto& option : kVocabulary.at(name)) s += magenta(option);
    return s;
}

// Runs `body` with descriptor 0 reading `keys` and standard output captured; returns the output.
template <typename Body>
std::string withKeys(const std::string& keys, Body body) {
    int in[2];
    EXPECT_EQ(pipe(in), 0);
    fcntl(in[1], F_SETPIPE_SZ, 1 << 16);
    EXPECT_EQ(write(in[1], keys.data(), keys.size()), static_cast<ssize_t>(keys.size()));
    close(in[1]);
    FILE* captured = tmpfile();
    std::cout.flush();
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

struct Session {
    std::string output;
    std::vector<std::string> lines;
};

// Types `keys` at a fresh editor until the input ends.
Session type(const std::string& keys, const Readline::Vocabulary& vocabulary = kVocabulary) {
    Session session;
    session.output = withKeys(keys, [&] {
        Readline readline(vocabulary);
        for (;;) {
            std::string line = readline.readline(kPrompt);
            if (readline.end_of_input()) break;
            session.lines.push_back(line);
        }
    });
    return session;
}

struct KeyCase {
    const char* name;
    std::string keys;
    std::string output;
    std::vector<std::string> lines;
};

void PrintTo(const KeyCase& c, std::ostream* os) { *os << c.name; }

class Keys : public testing::TestWithParam<KeyCase> {};

TEST_P(Keys, WriteExactBytes) {
    Session s = type(GetParam().keys);
    EXPECT_EQ(s.output, GetParam().output);
    EXPECT_EQ(s.lines, GetParam().lines);
}

const std::string HISTORY_ABC = P + R("a") + "\n" + P + R("b") + "\n" + P + R("c") + "\n";

INSTANTIATE_TEST_SUITE_P(
    Editing, Keys,
    testing::Values(
        KeyCase{"typing at the end moves no cursor", "ab\n", P + R("a") + R("ab") + "\n" + END,
                {"ab"}},
        KeyCase{"insertion in the middle rewrites and steps back", "ac" + LEFT + "b\n",
                P + R("a") + R("ac") + "\033[D" + R("abc", 1) + "\n" + END, {"abc"}},
        KeyCase{"backspace at column 0 writes nothing", "\x7f" "a\n", P + R("a") + "\n" + END,
                {"a"}},
        KeyCase{"backspace and ctrl-h inside the line", "abc" + LEFT + "\x7f\b\n",
                P + typed("abc") + "\033[D" + R("ac", 1) + R("c", 1) + "\n" + END,
                {"c"}},
        KeyCase{"left at 0 and right at the end do nothing", LEFT + RIGHT + "a" + RIGHT + "\n",
                P + R("a") + "\n" + END, {"a"}},
        KeyCase{"enter in the middle returns the whole line", "ab" + LEFT + "\r",
                P + R("a") + R("ab") + "\033[D" + "\n" + END, {"ab"}},
        KeyCase{"up and down walk the history and past its end",
                "a\nb\nc\n" + UP + UP + UP + UP + DOWN + DOWN + DOWN + DOWN + "\n",
                HISTORY_ABC + P + R("c") + R("b") + R("a") + R("b") + R("c") + R("") + "\n" + END,
                {"a", "b", "c", ""}},
        KeyCase{"empty history: up and down do nothing", "x" + UP + DOWN + "\n",
                P + R("x") + "\n" + END, {"x"}},
        KeyCase{"text typed before up is lost", "a\nxyz" + UP + DOWN + "\n",
                P + R("a") + "\n" + P + typed("xyz") + R("a") + R("") + "\n" + END,
                {"a", ""}},
        KeyCase{"the same line twice stands twice", "a\na\n" + UP + UP + UP + "\n",
                P + R("a") + "\n" + P + R("a") + "\n" + P + R("a") + R("a") + "\n" + END,
                {"a", "a", "a"}},
        KeyCase{"a blank line is stored, an empty one is not", " \n\n" + UP + UP + "\n",
                P + R(" ") + "\n" + P + "\n" + P + R(" ") + "\n" + END, {" ", "", " "}},
        KeyCase{"delete inserts its tilde", "\033[3~\n", P + R("~") + "\n" + END, {"~"}},
        KeyCase{"ESC O sequences are dropped whole", "\033OAa\n", P + R("a") + "\n" + END,
                {"a"}},
        KeyCase{"a lone escape eats two keys", "\033xyz\n", P + R("z") + "\n" + END, {"z"}},
        KeyCase{"control keys are ordinary bytes", "\x01\x04\n",
                P + R("\x01") + R("\x01\x04") + "\n" + END, {"\x01\x04"}},
        KeyCase{"bytes from 0x80 up are inserted as they are", "\xc3\xa9\xff\n",
                P + typed("\xc3\xa9\xff") + "\n" + END, {"\xc3\xa9\xff"}},
        KeyCase{"end of input inside an escape sequence ends cleanly", "a\033[", P + R("a") + "\n",
                {}},
        KeyCase{"end of input after a partial line drops it", "abc", P + R("a") + R("ab") +
                R("abc") + "\n", {}}));

INSTANTIATE_TEST_SUITE_P(
    Completion, Keys,
    testing::Values(
        KeyCase{"empty line: all names, twice", "\t\t\n",
                P + "\n" + allNames() + R("") + "\n" + allNames() + R("") + "\n" + END, {""}},
        KeyCase{"part of one name is completed, no blank", "Ani\t\n",
                P + typed("Ani") + R("AnionCtrl") + "\n" + END, {"AnionCtrl"}},
        KeyCase{"a complete name: nothing, then its options", "PQCtrl\t\t\n",
                P + typed("PQCtrl") + "\n" +
                    options("PQCtrl") + R("PQCtrl") + "\n" + END,
                {"PQCtrl"}},
        KeyCase{"several names with nothing to add: listed, line rewritten", "A\t\t\n",
                P + R("A") + "\n" + namesStartingWithA() + R("A") + "\n" + R("A") + "\n" + END,
                {"A"}},
        KeyCase{"a start that fits no name", "Z\t\t\n", P + R("Z") + R("Z") + "\n" + R("Z") + "\n" + END,
                {"Z"}},
        KeyCase{"name and one dash gets a second, then -- rewrites", "PQCtrl -\t\t\n",
                P + typed("PQCtrl") +
                    R("PQCtrl ") + R("PQCtrl -") + R("PQCtrl --") + R("PQCtrl --") + "\n" + END,
                {"PQCtrl --"}},
        KeyCase{"a unique option is completed", "AvManager --g\t\n",
                P + typed("AvManager --g") + R("AvManager --getSN") + "\n" + END,
                {"AvManager --getSN"}},
        KeyCase{"options with a common part: listed in magenta, common part inserted",
                "AudioCtrl --g\t\n",
                P + typed("AudioCtrl --g") + "\n" + magenta("--getAudioGain") +
                    magenta("--getAudioDelay") + R("AudioCtrl --getAudio") + "\n" + END,
                {"AudioCtrl --getAudio"}},
        KeyCase{"a value word: nothing, then the options", "PQCtrl 5\t\t\n",
                P + typed("PQCtrl 5") + "\n" + options("PQCtrl") + R("PQCtrl 5") + "\n" + END,
                {"PQCtrl 5"}},
        KeyCase{"completion looks left of the cursor only", "Anx" + LEFT + "\t\n",
                P + typed("Anx") + "\033[D" + R("AnionCtrlx", 1) + "\n" + END,
                {"AnionCtrlx"}},
        KeyCase{"backspace at column 0 keeps the tab count",
                "PQCtrl" + LEFT + LEFT + LEFT + LEFT + LEFT + LEFT + "\t\x7f\t\n",
                P + typed("PQCtrl") +
                    std::string("\033[D\033[D\033[D\033[D\033[D\033[D") + "\n" +
                    options("PQCtrl") + R("PQCtrl") + "\n" + END,
                {"PQCtrl"}},
        KeyCase{"an arrow key resets the tab count", "PQCtrl\t" + RIGHT + "\t\t\n",
                P + typed("PQCtrl") + "\n" +
                    options("PQCtrl") + R("PQCtrl") + "\n" + END,
                {"PQCtrl"}}));

// Bytes 0x80 to 0xFF: `char` is signed on x86-64 and unsigned on arm64; both must behave alike.
std::string highBytes() {
    std::string bytes;
    for (int b = 0x80; b <= 0xff; ++b) bytes += static_cast<char>(b);
    return bytes;
}

TEST(HighBytes, EveryByteIsAKeyOfItsOwnValue) {
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

TEST(HighBytes, InsertedErasedAndWalkedOverOneByteAtATime) {
    const std::string high = highBytes();
    Session s = type(high + "\n" + high + std::string(high.size() - 1, '\x7f') + "\n" +
                     "\xc3\xa9\xff" + LEFT + LEFT + "x\n");
    EXPECT_EQ(s.lines, (std::vector<std::string>{high, "\x80", "\xc3x\xa9\xff"}));
}

TEST(HighBytes, NoneSplitsWordsAndCompletionComparesThemExactly) {
    const std::string high = highBytes();
    EXPECT_EQ(Readline::split_line("a\xa0z \x85q\t" + high),
              (std::vector<std::string>{"a\xa0z", "\x85q", high}));
    EXPECT_EQ(Readline::countWords(high), 1);
    EXPECT_EQ(Readline::find_longest_common_prefix({"\xc3\xa9t\xc3\xa9", "\xc3\xa8re"}), "\xc3");
    EXPECT_EQ(Readline::find_longest_common_prefix({"\xff\x80", "\xff\x80\x81"}), "\xff\x80");
    Session s = type("\xc3\t --\xff\t\n", {{"\xc3\xa9t\xc3\xa9", {"--\xff\x80one", "--help"}},
                                          {"Anion", {"--help"}}});
    EXPECT_EQ(s.lines, std::vector<std::string>{"\xc3\xa9t\xc3\xa9 --\xff\x80one"});
}

}  // namespace
