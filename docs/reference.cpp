// Writes docs/options.md, the reference of every option, to standard output: from the tables the
// binary is built from, and from what each row did when it was run (RowRuns.h, the same runs the
// tests compare with their listing). Rewrite the reference after a change to any table:
//     cmake --build build --target options_reference && build/docs/options_reference > docs/options.md

#include <cstdio>
#include <set>
#include <string>

#include "RowRuns.h"

namespace {

using dumpbrel_test::Module;
using dumpbrel_test::Row;
using dumpbrel_test::RowRun;

constexpr const char* kHead = R"(# Every option

Generated from the tables the tool is built from; do not edit. Each sub-service's options are
listed in the order of its option list (`dumpbrel <sub-service> -h`), one line each: the long
option and its argument, the short letter as the option list shows it and what typing that letter
really does, what the option calls on the service, and what it printed on the simulated panel's
built-in profile, given `%s` where it takes an argument. "the option list" stands for the
sub-service's option list, printed after a refusal or by `-h`.

**Reading the letters.** Where several options are listed with the same letter, typing that letter
runs the last of them in the list. Whether a letter takes an argument is decided by the first place
the letter appears in the list's short forms, a colon right after it meaning it does, whichever
option the letter then runs.
)";

// A printed text in a table cell: each line a code span, lines apart with <br>, the option list
// (written "@options" by the runs) in words; nothing when the text is empty.
std::string cell(const std::string& text) {
    std::string result;
    for (size_t begin = 0, end; begin < text.size(); begin = end + 1) {
        end = text.find('\n', begin);
        if (end == std::string::npos) end = text.size();
        std::string line;
        for (unsigned char c : text.substr(begin, end - begin)) {
            char escape[8];
            snprintf(escape, sizeof escape, "\\x%02x", c);
            line += c == '|' ? "\\|" : c < 0x20 || c == 0x7f ? escape : std::string(1, c);
        }
        if (!result.empty()) result += "<br>";
        if (line == "@options") {
            result += "the option list";
            continue;
        }
        // A span holding a backtick is fenced by two, and a blank keeps a backtick or a blank
        // at its edge.
        std::string ticks = line.find('`') == std::string::npos ? "`" : "``";
        bool pad = line.empty() || line.front() == '`' || line.back() == '`' ||
                   line.front() == ' ' || line.back() == ' ';
        result += ticks + (pad ? " " : "") + line + (pad ? " " : "") + ticks;
    }
    return result;
}

std::string shortSpecs(const Module& module) {
    std::string joined;
    for (const Row& row : module.rows) joined += row.shortSpec;
    return joined;
}

// The last row whose short form begins with `letter`, or null.
const Row* rowOfLetter(const Module& module, char letter) {
    const Row* found = nullptr;
    for (const Row& row : module.rows)
        if (!row.shortSpec.empty() && row.shortSpec[0] == letter) found = &row;
    return found;
}

// What typing the row's letter does, and what its spec's further letters reach.
std::string letterRule(const Module& module, const Row& row) {
    if (row.shortSpec.empty()) return "no letter";
    const std::string joined = shortSpecs(module);
    const char letter = row.shortSpec[0];
    const Row* runs = rowOfLetter(module, letter);
    const size_t first = joined.find(letter);
    const bool argument = first + 1 < joined.size() && joined[first + 1] == ':';
    std::string rule = "`-" + std::string(1, letter) + "` runs " +
                       (runs == &row ? std::string("this option") : "`--" + runs->longName + "`") +
                       (argument ? ", with an argument" : ", without an argument");
    std::string unreached, elsewhere;
    int unreachedCount = 0;
    std::set<char> seen = {letter, ':'};
    for (char other : row.shortSpec.substr(1)) {
        if (!seen.insert(other).second) continue;
        const Row* reached = rowOfLetter(module, other);
        std::string name = "`-" + std::string(1, other) + "`";
        if (reached == nullptr)
            unreached += (unreachedCount++ ? ", " : "") + name;
        else
            elsewhere += "; " + name + " runs `--" + reached->longName + "`";
    }
    if (!unreached.empty())
        rule += "; " + unreached + (unreachedCount > 1 ? " reach" : " reaches") + " no option";
    return rule + elsewhere;
}

// What the row wrote with the sample argument, standard error after standard output.
std::string printed(const RowRun& run) {
    std::string text = cell(run.out);
    if (!run.plain.err.empty())
        text += (text.empty() ? "" : "<br>") + std::string("standard error: ") + cell(run.plain.err);
    return text;
}

// The operations called, one a line as the panel traced them, without the answers.
std::string calls(const RowRun& run) {
    std::string text = run.calls;
    if (!text.empty() && text.back() == '\n') text.pop_back();
    return cell(text);
}

}  // namespace

int main() {
    printf(kHead, dumpbrel_test::kSampleArgument);
    const Module* module = nullptr;
    for (const RowRun& run : dumpbrel_test::rowRuns()) {
        if (module != &run.module) {
            module = &run.module;
            printf("\n## %s\n\n", module->name.c_str());
            printf("| Option | Letter | What the letter does | Calls | Prints | Help |\n");
            printf("|---|---|---|---|---|---|\n");
        }
        const Row& row = run.row;
        std::string suffix = dumpbrel_test::argumentSuffix(row.hasArg);
        std::string help;
        for (char c : row.help) help += c == '\n' ? "<br>" : c == '|' ? "\\|" : std::string(1, c);
        printf("| `--%s%s` | %s | %s | %s | %s | %s |\n", row.longName.c_str(), suffix.c_str(),
               row.shortSpec.empty() ? "" : ("`-" + row.shortSpec + suffix + "`").c_str(),
               letterRule(*module, row).c_str(), calls(run).c_str(), printed(run).c_str(),
               help.c_str());
    }
    return 0;
}
