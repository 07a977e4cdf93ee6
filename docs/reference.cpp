// Writes docs/options.md, the reference of every option, to standard output: from the tables the
// binary is built from, and from what each row did when it was run (RowRuns.h, the same runs the
// tests compare with their listing). Rewrite the reference after a change to any table:
//     cmake --build build --target options_reference && build/docs/options_reference > docs/options.md

#include <algorithm>
#include <cstdio>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "RowRuns.h"

namespace {

using dumpbrel_test::Module;
using dumpbrel_test::Row;
using dumpbrel_test::RowRun;

constexpr const char* kHead = R"(# Every option

Generated from the tables the tool is built from; do not edit. Each sub-service's options are
listed in the order of its option list (`dumpbrel <sub-service> -h`), one line each: the long
option and its argument, the short letter as the option list shows it and what typing that letter
really does (learnt by typing it), what the option calls on the service, and what it printed on
the simulated panel's built-in profile, given `%s` where it takes an argument. "the option
list" stands for the sub-service's option list, printed after a refusal or by `-h`.

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

// What typing a letter does, learnt by typing it: `-<letter> 1,2,3,4` with every interface absent,
// so that the row it runs names itself on standard error and calls nothing; an argument it does
// not take is left over, and said so. The help row, which stops at once, says nothing of its
// argument: the rule of its letter decides that.
// What follows the letter's first place in the short specs: ":" an argument, "::" one that must be
// attached to the letter, "" none.
std::string colonsAfter(const Module& module, char letter) {
    std::string joined;
    for (const Row& row : module.rows) joined += row.shortSpec;
    size_t first = joined.find(letter);
    size_t colons = first == std::string::npos ? 0 : joined.find_first_not_of(':', first + 1);
    colons = (colons == std::string::npos ? joined.size() : colons) - first - 1;
    return std::string(std::min<size_t>(colons, 2), ':');
}

struct Typed {
    std::string runs;  // the long name of the row run; empty: none
    bool argument = false;
};

Typed typed(const Module& module, char letter) {
    static std::map<std::pair<std::string, char>, Typed> seen;
    auto found = seen.find({module.name, letter});
    if (found != seen.end()) return found->second;
    dumpbrel_test::Start start;
    start.args = {module.name, std::string("-") + letter, dumpbrel_test::kSampleArgument};
    start.env["BREL_SIM_ABSENT"] = "all";
    dumpbrel_test::Result run = dumpbrel_test::runEntry(start);
    Typed result;
    const std::string named = module.name + " --", absent = ": service interface not available";
    size_t at = run.err.find(named);
    if (at != std::string::npos && run.err.find(absent, at) != std::string::npos) {
        at += named.size();
        result.runs = run.err.substr(at, run.err.find(absent, at) - at);
        result.argument = run.out.find(std::string("unknown option: ") +
                                       dumpbrel_test::kSampleArgument) == std::string::npos;
    } else if (run.out.rfind("unknown option: ", 0) != 0) {
        result.runs = "help";
        result.argument = colonsAfter(module, letter) == ":";
    }
    return seen[{module.name, letter}] = result;
}

// What typing the row's letter does, and what its spec's further letters reach.
std::string letterRule(const Module& module, const Row& row) {
    if (row.shortSpec.empty()) return "no letter";
    const char letter = row.shortSpec[0];
    const Typed mine = typed(module, letter);
    std::string rule = "`-" + std::string(1, letter) + "` runs " +
                       (mine.runs == row.longName ? std::string("this option")
                                                  : "`--" + mine.runs + "`") +
                       (mine.argument                         ? ", with an argument"
                        : colonsAfter(module, letter) == "::" ? ", with an argument only when attached (`-" +
                                                             std::string(1, letter) + "TEXT`)"
                                                       : ", without an argument");
    std::string unreached, elsewhere;
    int unreachedCount = 0;
    std::set<char> seen = {letter, ':'};
    for (char other : row.shortSpec.substr(1)) {
        if (!seen.insert(other).second) continue;
        const Typed reached = typed(module, other);
        std::string name = "`-" + std::string(1, other) + "`";
        if (reached.runs.empty())
            unreached += (unreachedCount++ ? ", " : "") + name;
        else
            elsewhere += "; " + name + " runs `--" + reached.runs + "`";
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

// The operations a run called, by name.
std::vector<std::string> operations(const std::string& trace) {
    std::vector<std::string> names;
    for (size_t at = 0; (at = trace.find('.', at)) != std::string::npos; at = trace.find('\n', at)) {
        size_t open = trace.find('(', at);
        names.push_back(trace.substr(at + 1, open - at - 1));
    }
    return names;
}

bool reads(const std::string& op) {
    for (const char* prefix : {"get", "Get", "is", "Is", "read"})
        if (op.rfind(prefix, 0) == 0) return true;
    return false;
}

// record/snapshot.txt: a line for the prompt for every option without argument that calls only
// reading operations, on the built-in panel and on a neutral one alike.
int snapshot() {
    for (const RowRun& run : dumpbrel_test::rowRuns()) {
        std::vector<std::string> called = operations(run.plain.calls + run.abc.calls);
        if (run.row.hasArg != 0 || called.empty() || !std::all_of(called.begin(), called.end(), reads))
            continue;
        printf("%s --%s\n", run.module.name.c_str(), run.row.longName.c_str());
    }
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc > 1 && std::string(argv[1]) == "--snapshot") return snapshot();
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
