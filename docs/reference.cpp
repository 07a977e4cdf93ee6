// Writes docs/options.md, the reference of every option, to standard output. Everything in it is
// learnt from the tables the binary is built from and from running the rows through the binary's
// entry against the simulated panel: what an argument is made of is found by changing it and
// watching the calls, what a letter does by typing it. Rewrite the reference after a change to
// any table:
//     cmake --build build --target options_reference && build/docs/options_reference >
//     docs/options.md
// With --snapshot it writes record/snapshot.txt instead.

#include <stdlib.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <climits>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

#include "RowRuns.h"
#include "adaptor/Json.h"

namespace {

using dumpbrel_test::Module;
using dumpbrel_test::optionList;
using dumpbrel_test::Result;
using dumpbrel_test::Row;
using dumpbrel_test::RowRun;
using Words = std::vector<std::string>;

constexpr size_t kWrap = 100;  // prose is wrapped here; nothing goes past 120

// ---- Running -------------------------------------------------------------------------------

// Every run made for the entry being written: the argument as shown, and the operations called.
struct Seen {
    std::string argument;
    std::set<std::string> operations;
};
std::vector<Seen>* gSeen = nullptr;

// "IAudioCtrl.setAudioGain" for each line of a trace.
std::set<std::string> operationsOf(const std::string& trace) {
    std::set<std::string> names;
    std::istringstream lines(trace);
    for (std::string line; std::getline(lines, line);) names.insert(line.substr(0, line.find('(')));
    return names;
}

bool refused(const Module& module, const Result& run) {
    return run.out.find(optionList(module.name)) != std::string::npos;
}

// The binary's entry with `words` after the sub-service's name, on the built-in panel; the same
// words are run once.
const Result& run(const Module& module, const Words& words,
                  const std::map<std::string, std::string>& env = {}) {
    static std::map<std::pair<Words, std::map<std::string, std::string>>, Result> runs;
    Words all = words;
    all.insert(all.begin(), module.name);
    auto found = runs.find({all, env});
    if (found == runs.end()) {
        dumpbrel_test::Start start;
        start.args = all;
        start.env = env;
        found = runs.emplace(std::make_pair(all, env), dumpbrel_test::runEntry(start)).first;
    }
    return found->second;
}

const Result& absent(const Module& module, const Words& words) {
    return run(module, words, {{"BREL_SIM_ABSENT", "all"}});
}

// A run told apart from another by what reached the panel.
std::string outcome(const Module& module, const Result& run) {
    return refused(module, run) ? std::string("refused") : run.calls;
}

// How a row is given an argument: `--name=TEXT`, or `-l TEXT` where only its letter carries one.
struct Form {
    std::string lead;
    bool attached = true;
    Words words(const std::string& value) const {
        if (attached) return {lead + "=" + value};
        return {lead, value};
    }
};

std::string shellWord(const std::string& word) {
    if (!word.empty() &&
        word.find_first_not_of("abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ"
                               "0123456789-_=,.:/+@%") == std::string::npos)
        return word;
    std::string quoted = "'";
    for (char c : word) quoted += c == '\'' ? std::string("'\\''") : std::string(1, c);
    return quoted + "'";
}

std::string commandLine(const Module& module, const Words& words) {
    std::string line = "dumpbrel " + module.name;
    for (const std::string& word : words) line += " " + shellWord(word);
    return line;
}

const Result& runWith(const Module& module, const Form& form, const std::string& value) {
    const Result& result = run(module, form.words(value));
    if (gSeen && !refused(module, result)) gSeen->push_back({value, operationsOf(result.calls)});
    return result;
}

// ---- Text ----------------------------------------------------------------------------------

std::string join(const Words& words, const std::string& between) {
    std::string text;
    for (size_t i = 0; i < words.size(); ++i) text += (i ? between : "") + words[i];
    return text;
}

std::string code(const std::string& text) {
    std::string ticks = text.find('`') == std::string::npos ? "`" : "``";
    bool pad = text.empty() || text.front() == '`' || text.back() == '`';
    return ticks + (pad ? " " : "") + text + (pad ? " " : "") + ticks;
}

// A printed line as it can be read: a tab `\t`, another control byte `\xNN`, a backslash `\\`.
std::string visible(const std::string& line) {
    std::string text;
    for (unsigned char c : line) {
        char escape[8];
        snprintf(escape, sizeof escape, "\\x%02x", c);
        text += c == '\\'               ? "\\\\"
                : c == '\t'             ? "\\t"
                : c < 0x20 || c == 0x7f ? escape
                                        : std::string(1, c);
    }
    // A blank at the end, which a page would not show.
    if (!text.empty() && text.back() == ' ') text.replace(text.size() - 1, 1, "\\x20");
    return text;
}

// `text` wrapped at blanks to kWrap columns; lines after the first start with `indent`.
std::string wrap(const std::string& text, const std::string& indent = "") {
    std::string result, line;
    std::istringstream words(text);
    for (std::string word; words >> word;) {
        if (!line.empty() && line.size() + 1 + word.size() > kWrap) {
            result += line + "\n";
            line = indent;
        }
        line += (line.empty() || line == indent ? "" : " ") + word;
    }
    return result + line + "\n";
}

// Trace lines without their answers, and without the interface where it is the sub-service's own.
Words shownCalls(const Module& module, const std::string& trace) {
    Words calls;
    std::istringstream lines(trace);
    const std::string own = "I" + module.name + ".";
    for (std::string line; std::getline(lines, line);) {
        line = line.substr(0, line.find(" -> "));
        if (line.rfind(own, 0) == 0) line.erase(0, own.size());
        calls.push_back(line);
    }
    return calls;
}

std::string callList(const Module& module, const std::string& trace) {
    Words calls = shownCalls(module, trace);
    for (std::string& call : calls) call = code(call);
    return calls.empty() ? "nothing" : join(calls, ", ");
}

// An example as a terminal shows it, indented as code: the command, what it printed (standard
// error marked "! "), the option list in words, and the calls after "# ".
std::string example(const Module& module, const Words& words, const Result& result) {
    std::string block = "    $ " + commandLine(module, words) + "\n";
    std::string out = result.out;
    const std::string& list = optionList(module.name);
    for (size_t at; !list.empty() && (at = out.find(list)) != std::string::npos;)
        out.replace(at, list.size(), "\x01\n");
    auto lines = [&](const std::string& text, const std::string& mark) {
        std::istringstream in(text);
        for (std::string line; std::getline(in, line);)
            block += "    " + mark + (line == "\x01" ? "(the option list)" : visible(line)) + "\n";
    };
    lines(result.err, "! ");
    lines(out, "");
    for (const std::string& call : shownCalls(module, result.calls)) {
        // A long call is broken after its commas.
        std::string line = "    # " + call;
        while (line.size() > kWrap) {
            size_t at = line.rfind(", ", kWrap - 1);
            if (at == std::string::npos || at < 12) break;
            block += line.substr(0, at + 1) + "\n";
            line = "    #     " + line.substr(at + 2);
        }
        block += line + "\n";
    }
    if (result.calls.empty()) block += "    # nothing called\n";
    return block;
}

const char* ordinal(size_t i) {
    static const char* const names[] = {"1st", "2nd", "3rd", "4th", "5th", "6th", "7th", "8th"};
    return names[i];
}

// ---- Arguments -----------------------------------------------------------------------------

constexpr size_t kFields = 6;  // fields given when looking for the ones a row reads
const char kSeparators[] = ",:; /";

struct Field {
    bool read = false, text = false, real = false, hex = false;
    std::string noNumber;  // what text that is no number does
    std::string accepts;   // the values accepted, where some are refused
};

struct Argument {
    Form form;
    bool any = false;    // some argument was accepted
    bool whole = false;  // passed on as typed
    char separator = 0;  // 0: one value
    std::vector<Field> fields;
    Words base;  // accepted: a value for each field read
};

Words with(Words values, size_t index, const std::string& value) {
    values[index] = value;
    return values;
}

std::string joined(const Words& values, char separator) {
    return join(values, std::string(1, separator ? separator : ','));
}

// Which of kFields fields, apart by `separator`, change what reaches the panel.
std::vector<bool> fieldsRead(const Module& module, const Form& form, const Words& base,
                             char separator) {
    const std::string before = outcome(module, runWith(module, form, joined(base, separator)));
    std::vector<bool> read(base.size());
    for (size_t k = 0; k < base.size(); ++k) {
        // 0 against a number: apart as numbers and as bools.
        const std::string other = base[k] == "0" ? "2" : "0";
        read[k] = outcome(module, runWith(module, form, joined(with(base, k, other), separator))) !=
                  before;
    }
    while (!read.empty() && !read.back()) read.pop_back();
    return read;
}

std::string range(long long low, long long high) {
    if (low == high) return std::to_string(low);
    if (low == INT_MIN) return "up to " + std::to_string(high);
    if (high == INT_MAX) return std::to_string(low) + " or more";
    return std::to_string(low) + " to " + std::to_string(high);
}

// The values of field `k` that are not refused, where some are; found on a ladder of values and
// narrowed between neighbours that part.
std::string accepted(const Module& module, const Argument& arg, size_t k) {
    const std::vector<long long> ladder = {INT_MIN, -1, 0,  1,   2,   3,     4,      5,
                                           10,      25, 33, 101, 256, 65536, INT_MAX};
    auto takes = [&](long long value) {
        Words values = with(arg.base, k, std::to_string(value));
        return !refused(module, runWith(module, arg.form, joined(values, arg.separator)));
    };
    std::vector<std::pair<long long, bool>> points;
    for (long long value : ladder) points.push_back({value, takes(value)});
    bool all = std::all_of(points.begin(), points.end(), [](auto& p) { return p.second; });
    bool none = std::none_of(points.begin(), points.end(), [](auto& p) { return p.second; });
    if (all || none) return "";
    // Where two neighbours part, the first value that takes the second one's side.
    std::vector<std::pair<long long, long long>> ranges;
    long long start = points[0].second ? INT_MIN : 0;
    bool open = points[0].second;
    for (size_t i = 1; i < points.size(); ++i) {
        if (points[i].second == open) continue;
        long long low = points[i - 1].first, high = points[i].first;
        while (high - low > 1) {
            long long middle = low + (high - low) / 2;
            (takes(middle) == open ? low : high) = middle;
        }
        if (open) ranges.push_back({start, low});
        start = high;
        open = !open;
    }
    if (open) ranges.push_back({start, INT_MAX});
    Words parts;
    for (auto [low, high] : ranges) parts.push_back(range(low, high));
    std::string last = parts.back();
    parts.pop_back();
    return "only " + (parts.empty() ? last : join(parts, ", ") + " and " + last);
}

Field field(const Module& module, const Argument& arg, size_t k) {
    Field f;
    f.read = true;
    auto runOf = [&](const std::string& value) -> const Result& {
        return runWith(module, arg.form, joined(with(arg.base, k, value), arg.separator));
    };
    const Result& text = runOf("abc");
    if (text.calls.find("\"abc\"") != std::string::npos) {
        f.text = true;
        return f;
    }
    // A number in hexadecimal reads "ff" as 255.
    const Result& hex = runOf("ff");
    f.hex = !refused(module, hex) && hex.calls.find("255") != std::string::npos;
    const std::string other = f.hex ? "xyz" : "abc";
    const Result& word = runOf(other);
    const std::string kind =
            f.hex ? "text that is no hexadecimal number" : "text that is no number";
    if (refused(module, word)) {
        f.noNumber = kind + " is refused";
    } else if (outcome(module, word) == outcome(module, runOf("0"))) {
        f.noNumber = kind + " counts as 0";
    } else {
        Words shown = with(arg.base, k, other);
        f.noNumber =
                code(joined(shown, arg.separator)) + " calls " +
                callList(module, runWith(module, arg.form, joined(shown, arg.separator)).calls);
    }
    const Result& real = runOf("1.5");
    f.real = !refused(module, real) && real.calls.find("1.5") != std::string::npos;
    if (!f.real) f.accepts = accepted(module, arg, k);
    return f;
}

// What the row makes of its argument, found by running it.
Argument analyse(const Module& module, const Form& form) {
    Argument arg;
    arg.form = form;
    std::vector<bool> best;
    for (char separator : std::string(kSeparators)) {
        for (const char* value : {"1", "0", "2", "abc"}) {
            Words base(kFields, value);
            const Result& first = runWith(module, form, joined(base, separator));
            if (refused(module, first)) continue;
            if (!arg.any &&
                first.calls.find('"' + joined(base, separator) + '"') != std::string::npos) {
                arg.any = arg.whole = true;
                arg.base = {joined(base, separator)};
                return arg;
            }
            // Another separator is looked at only where it reaches a second field.
            if (separator != ',' &&
                outcome(module, first) ==
                        outcome(module,
                                runWith(module, form,
                                        joined(with(base, 1, value == std::string("0") ? "2" : "0"),
                                               separator))))
                break;
            std::vector<bool> read = fieldsRead(module, form, base, separator);
            if (!arg.any || read.size() > best.size()) {
                arg.any = true;
                best = read;
                arg.separator = read.size() > 1 ? separator : 0;
                // Where no field alone changes the calls, the whole of what was tried.
                arg.base = Words(std::max<size_t>(read.size(), 1), value);
                if (read.empty() &&
                    outcome(module, first) != outcome(module, runWith(module, form, value)))
                    arg.base = base;
            }
            break;
        }
        if (best.size() > 1) break;
    }
    if (!arg.any) return arg;
    for (size_t k = 0; k < best.size(); ++k)
        arg.fields.push_back(best[k] ? field(module, arg, k) : Field());
    return arg;
}

std::string fieldWords(const Field& f) {
    if (!f.read) return "not read";
    if (f.text) return "text, passed on as typed";
    std::string words = f.real ? "a real number" : f.hex ? "a hexadecimal number" : "a number";
    if (!f.accepts.empty()) words += ", " + f.accepts + (f.hex ? " as typed" : "");
    return words + " (" + f.noNumber + ")";
}

// The example value: small numbers that tell the fields apart, where the row takes them.
std::string exampleValue(const Module& module, const Argument& arg) {
    if (arg.whole) {
        if (!refused(module, runWith(module, arg.form, "abc"))) return "abc";
        return arg.base[0];
    }
    Words values = arg.base;
    for (size_t k = 0; k < arg.fields.size(); ++k) {
        if (!arg.fields[k].read) continue;
        if (arg.fields[k].text) {
            values[k] = "abc";
            continue;
        }
        for (const std::string& candidate :
             {std::to_string(k + 1), std::string("1"), std::string("0")})
            if (!refused(module, runWith(module, arg.form,
                                         joined(with(arg.base, k, candidate), arg.separator)))) {
                values[k] = candidate;
                break;
            }
    }
    if (refused(module, runWith(module, arg.form, joined(values, arg.separator))))
        values = arg.base;
    return joined(values, arg.separator);
}

// The sentence on the argument.
std::string argumentWords(const Module& module, const Argument& arg) {
    if (!arg.any) return "every argument tried is refused.";
    std::string text;
    if (arg.whole) {
        text = "text, passed on as typed.";
    } else if (arg.fields.empty()) {
        const std::string tried = joined(arg.base, ',');
        bool same = outcome(module, runWith(module, arg.form, tried)) ==
                    outcome(module, runWith(module, arg.form, "1"));
        text = same ? "required, but not read: whatever it is, the same is called."
                    : "required; no field of " + code(tried) +
                               " changes what is called when changed alone, but " + code("1") +
                               " calls " + callList(module, runWith(module, arg.form, "1").calls) +
                               ".";
    } else if (arg.fields.size() == 1) {
        text = fieldWords(arg.fields[0]) + ".";
    } else {
        std::string sep = code(std::string(1, arg.separator));
        text = std::to_string(arg.fields.size()) + " fields apart by " + sep;
        std::set<std::string> kinds;
        for (const Field& f : arg.fields) kinds.insert(fieldWords(f));
        if (kinds.size() == 1) {
            text += ", each " + *kinds.begin() + ".";
        } else {
            text += ":";
            for (size_t k = 0; k < arg.fields.size(); ++k)
                text += std::string(k ? ";" : "") + " the " + ordinal(k) + " " +
                        fieldWords(arg.fields[k]);
            text += ".";
        }
        text += " Anything after the " + std::string(ordinal(arg.fields.size() - 1)) +
                " field is not read.";
        std::string fewer = joined(Words(arg.base.begin(), arg.base.end() - 1), arg.separator);
        const Result& shorter = runWith(module, arg.form, fewer);
        text += " With fewer, as " + code(fewer) + ", " +
                (refused(module, shorter) ? std::string("it is refused.")
                                          : "it calls " + callList(module, shorter.calls) + ".");
    }
    const Result& empty = runWith(module, arg.form, "");
    text += " An empty argument " + (refused(module, empty)
                                             ? std::string("is refused.")
                                             : "calls " + callList(module, empty.calls) + ".");
    return text;
}

// ---- Letters -------------------------------------------------------------------------------

// What follows the letter's first place in the short forms: ":" an argument, "::" one that must
// be attached to the letter, "" none.
std::string colonsAfter(const Module& module, char letter) {
    std::string joined;
    for (const Row& row : module.rows) joined += row.shortSpec;
    size_t first = joined.find(letter);
    size_t colons = first == std::string::npos ? 0 : joined.find_first_not_of(':', first + 1);
    colons = (colons == std::string::npos ? joined.size() : colons) - first - 1;
    return std::string(std::min<size_t>(colons, 2), ':');
}

const Row* rowOfLetter(const Module& module, char letter) {
    const Row* found = nullptr;
    for (const Row& row : module.rows)
        if (!row.shortSpec.empty() && row.shortSpec[0] == letter) found = &row;
    return found;
}

// The letters as the option list shows them, and `1` after them where the row takes an argument.
Words letterWords(const Row& row) {
    std::string letters;
    for (char c : row.shortSpec)
        if (c != ':') letters += c;
    Words words = {"-" + letters};
    if (row.shortSpec.find(':') != std::string::npos || row.hasArg != 0) words.push_back("1");
    return words;
}

struct Step {
    const Row* row;
    bool argument;
    std::string value;
};

// The rows that typing `words` reaches, in order, by the rule of the letters' first places; checked
// against a run in which every row names itself.
std::vector<Step> steps(const Module& module, const Words& words) {
    std::vector<Step> found;
    const std::string letters = words[0].substr(1);
    size_t next = 1;
    for (size_t i = 0; i < letters.size(); ++i) {
        const Row* row = rowOfLetter(module, letters[i]);
        std::string colons = colonsAfter(module, letters[i]);
        if (row == nullptr) break;
        Step step{row, false, ""};
        if (!colons.empty() && i + 1 < letters.size()) {
            step = {row, true, letters.substr(i + 1)};
            i = letters.size();
        } else if (colons == ":" && next < words.size()) {
            step = {row, true, words[next++]};
        } else if (colons == ":") {
            break;  // an argument required and none left
        }
        found.push_back(step);
        if (row->longName == "help") break;
    }
    return found;
}

std::string stepWords(const Step& step, const Row& self) {
    std::string name = step.row == &self ? "this option" : code("--" + step.row->longName);
    return name +
           (step.argument ? " with " + code(step.value) : std::string(" without an argument"));
}

// What typing the row's letter as the option list shows it does, where that is more than
// running this option as its long form runs it; empty otherwise.
std::string letterSentence(const Module& module, const Row& row, bool takesArgument) {
    if (row.shortSpec.empty() || row.longName == "help") return "";
    const Words words = letterWords(row);
    const Result& typed = run(module, words);
    std::vector<Step> reached = steps(module, words);

    // Checked against the names the rows give when there is no panel.
    Words named;
    const Result& blind = absent(module, words);
    const std::string head = module.name + " --", tail = ": service interface not available";
    for (size_t at = 0; (at = blind.err.find(head, at)) != std::string::npos;) {
        at += head.size();
        named.push_back(blind.err.substr(at, blind.err.find(tail, at) - at));
    }
    Words expected;
    for (const Step& step : reached)
        if (step.row->longName != "help") expected.push_back(step.row->longName);
    if (named != expected) {
        fprintf(stderr, "%s %s: the rows reached (%s) are not those named (%s)\n",
                module.name.c_str(), join(words, " ").c_str(), join(expected, " ").c_str(),
                join(named, " ").c_str());
        exit(1);
    }

    std::string unknown;
    size_t at = typed.out.find("unknown option: ");
    if (at != std::string::npos) unknown = typed.out.substr(at, typed.out.find('\n', at) - at);
    if (reached.size() == 1 && reached[0].row == &row && unknown.empty() &&
        !refused(module, typed) && reached[0].argument == takesArgument)
        return "";

    // The rows that run: up to the first that refuses on its own.
    std::vector<Step> ran;
    bool stopped = false;
    for (const Step& step : reached) {
        ran.push_back(step);
        Words alone = {"-" + std::string(1, step.row->shortSpec[0]) + step.value};
        if ((stopped = refused(module, run(module, alone)))) break;
    }
    std::string text =
            "Typed as the option list shows it, " + code(commandLine(module, words)) + " ";
    if (ran.empty())
        return text + "reaches no option: it prints " + code(unknown) +
               " and the option list, and calls nothing.";
    Words parts;
    for (const Step& step : ran) parts.push_back(stepWords(step, row));
    text += "runs " + join(parts, ", then ");
    if (stopped)
        text += ", which refuses: it prints the option list";
    else if (!unknown.empty())
        text += "; then " + code(unknown) + " and the option list";
    text += typed.calls.empty() ? ", and calls nothing."
                                : "; it calls " + callList(module, typed.calls) + ".";
    return text;
}

// ---- The reference -------------------------------------------------------------------------

bool reads(const std::string& operation) {
    std::string name = operation.substr(operation.find('.') + 1);
    for (const char* prefix : {"get", "Get", "is", "Is", "read"})
        if (name.rfind(prefix, 0) == 0) return true;
    return false;
}

// A scratch directory of this writer's own, gone when it ends.
struct Scratch {
    std::string path;
    Scratch() {
        std::string base = (getenv("TMPDIR") ? getenv("TMPDIR") : "/tmp") +
                           std::string("/dumpbrel-reference-XXXXXX");
        path = mkdtemp(base.data()) ? base : "";
    }
    ~Scratch() {
        if (!path.empty()) std::filesystem::remove_all(path);
    }
};

std::string gScratch;  // the writer's scratch directory

// What the simulated panel's memory keeps of a run: "Interface.getter(arguments)" and its value.
std::vector<std::pair<std::string, std::string>> kept(const Module& module, const Words& words) {
    const std::string file = gScratch + "/memory-" + std::to_string(getpid()) + ".json";
    std::filesystem::remove(file);
    run(module, words, {{"BREL_SIM_STATE", file}});
    std::ifstream in(file);
    std::string text((std::istreambuf_iterator<char>(in)), {}), error;
    Json::Value memory;
    std::vector<std::pair<std::string, std::string>> found;
    if (!adaptor::parse(text, memory, error) || !memory.isObject()) return found;
    for (const std::string& iface : memory.getMemberNames())
        if (memory[iface].isObject())
            for (const std::string& key : memory[iface].getMemberNames())
                found.push_back({iface + "." + key, adaptor::profileText(memory[iface][key], true)});
    return found;
}

struct Entry {
    const Row* row;
    std::string text;
    std::set<std::string> operations;
};

std::string head(const Row& row) {
    std::string suffix = dumpbrel_test::argumentSuffix(row.hasArg);
    std::string line = "### " + code("--" + row.longName + suffix);
    if (!row.shortSpec.empty()) line += ", " + code("-" + row.shortSpec + suffix);
    return line + "\n";
}

// Lines shown as code, indented.
std::string verbatim(const std::string& text) {
    std::string block;
    std::istringstream in(text);
    for (std::string line; std::getline(in, line);) {
        bool blank = line.find_first_not_of(' ') == std::string::npos;
        if (!(blank && block.empty())) block += blank ? "\n" : "    " + visible(line) + "\n";
    }
    return block;
}

// An entry: its head, then paragraphs and examples apart by blank lines, then its notes as a list.
Entry entry(const Module& module, const Row& row) {
    std::vector<Seen> seen;
    gSeen = &seen;
    Entry e{&row, "", {}};
    Words blocks = {head(row)};
    if (!row.help.empty())
        blocks.push_back("Its help in the option list:\n\n" + verbatim(row.help));

    // The argument comes with the long form, or, where that has none, with a letter that carries
    // one to this row, if the row reads it.
    Form form;
    Argument arg;
    bool takesArgument = row.hasArg != 0;
    if (takesArgument) {
        form.lead = {"--" + row.longName};
        arg = analyse(module, form);
    } else if (!row.shortSpec.empty() && colonsAfter(module, row.shortSpec[0]) == ":" &&
               rowOfLetter(module, row.shortSpec[0]) == &row) {
        form = {"-" + std::string(1, row.shortSpec[0]), false};
        arg = analyse(module, form);
        takesArgument = arg.whole || !arg.fields.empty();
        if (!takesArgument) seen.clear();
    }

    Words words = {"--" + row.longName};
    if (row.hasArg != 1) {
        const Result& plain = run(module, words);
        if (!refused(module, plain)) seen.push_back({"", operationsOf(plain.calls)});
        if (row.hasArg == 2) blocks.push_back("Without an argument:\n");
        if (takesArgument && row.hasArg == 0)
            blocks.push_back(wrap("Its long form takes no argument and " +
                                  std::string(refused(module, plain) ? "is refused" : "runs so") +
                                  "; only its letter carries one, as further down."));
        blocks.push_back(example(module, words, plain));
    }
    if (takesArgument) {
        blocks.push_back(
                wrap("Argument" +
                     std::string(row.hasArg == 0 ? " (through " + code(form.lead) + ")" : "") +
                     ": " + argumentWords(module, arg)));
        std::string value = arg.any ? exampleValue(module, arg) : "1";
        words = form.words(value);
        blocks.push_back(example(module, words, runWith(module, form, value)));
    }

    std::string notes;
    // Which operation depends on the argument.
    std::map<std::set<std::string>, std::string> sets;
    for (const Seen& s : seen) {
        sets.emplace(s.operations, s.argument);
        e.operations.insert(s.operations.begin(), s.operations.end());
    }
    if (sets.size() > 1) {
        Words parts;
        for (const auto& [operations, argument] : sets) {
            Words names;
            for (const std::string& op : operations)
                names.push_back(code(op.substr(op.find('.') + 1)));
            parts.push_back(
                    (names.empty() ? std::string("nothing") : join(names, " and ")) +
                    (argument.empty() ? " without an argument" : " with " + code(argument)));
        }
        notes += wrap("- What it calls depends on the argument: " + join(parts, "; ") + ".", "  ");
    }
    Words changing;
    for (const std::string& op : e.operations)
        if (!reads(op)) changing.push_back(code(op.substr(op.find('.') + 1)));
    if (!changing.empty()) {
        std::string text = "- It changes the panel: it calls " + join(changing, ", ") + ".";
        for (const auto& [getter, value] : kept(module, words))
            text += " The simulated panel's memory keeps what it sets: afterwards " +
                    code(getter.substr(getter.find('.') + 1)) + " of " +
                    getter.substr(0, getter.find('.')) + " answers " + code(value) + ".";
        notes += wrap(text, "  ");
    }
    std::string letter = letterSentence(module, row, takesArgument);
    if (!letter.empty()) notes += wrap("- " + letter, "  ");
    if (!notes.empty()) blocks.push_back(notes);
    e.text = join(blocks, "\n");
    gSeen = nullptr;
    return e;
}

constexpr const char* kHead = R"head(# Every option

Written by `docs/reference.cpp` from the option tables and from running every row against the
simulated panel's built-in profile; do not edit. How to look something up:

- **By sub-service**: the [index](#index) lists them; each has a section headed by its name, with an
  entry for every option in the order of its option list (`dumpbrel <sub-service> -h`).
- **By option**: an entry starts with a line of its own holding the long form, then the letters as
  the option list shows them (search for `--getBacklight` or `-b`).
- **By operation**: the index lists every operation an option calls, with the options that call it.

An entry shows how to type the option and what it did: for one with an argument, what the argument
is made of (how many fields, apart by what, how each is read, which values are refused), learnt by
running the row with other arguments, and an example it accepts. The examples are as a terminal
shows them: after `$` the command, then what it printed, a line on standard error after `!`, "(the
option list)" for the sub-service's option list, and after `#` the calls the panel received. In
printed text a tab is shown `\t`, a blank that ends a line `\x20`, another control byte `\xNN`,
a backslash `\\`.

Options that call anything but a read (an operation whose name begins with `get`, `Get`, `is`, `Is`
or `read`) say so, with what the simulated panel's memory (`BREL_SIM_STATE`) keeps of the value.

**The letters.** Where several options are listed with the same letter, typing that letter runs the
last of them. Whether it takes an argument is decided by the first place the letter has in the
option list, a colon right after it meaning it does, whichever option it then runs. Letters of
several characters are read one character at a time. An entry says what typing its letters as
the option list shows them really does (with `1` after them where the option takes an argument),
wherever that is not simply this option.
)head";

// record/snapshot.txt: a line for the prompt for every option without argument that calls only
// reading operations, on the built-in panel and on a neutral one alike.
int snapshot() {
    for (const RowRun& run : dumpbrel_test::rowRuns()) {
        if (run.row.hasArg != 0) continue;
        Result plain = dumpbrel_test::runEntry({run.module.name, "--" + run.row.longName});
        std::set<std::string> called = operationsOf(plain.calls + run.abc.calls);
        if (run.row.hasArg != 0 || called.empty() ||
            !std::all_of(called.begin(), called.end(), reads))
            continue;
        printf("%s --%s\n", run.module.name.c_str(), run.row.longName.c_str());
    }
    return 0;
}

std::string anchor(const std::string& name) {
    std::string lower;
    for (char c : name) lower += static_cast<char>(tolower(static_cast<unsigned char>(c)));
    return lower;
}

// The entries of every sub-service. The runs are nearly all of the cost, so children share the
// rows (each takes every n-th), write their entries to the scratch directory and the
// entries are read back in order: operations a line each, then the text, each after its count.
std::vector<std::vector<Entry>> entries(const std::vector<Module>& modules) {
    const size_t workers = std::clamp<size_t>(std::thread::hardware_concurrency(), 1, 8);
    fflush(nullptr);
    std::vector<pid_t> children;
    for (size_t worker = 0; worker < workers; ++worker) {
        pid_t pid = fork();
        if (pid == 0) {
            std::ofstream out(gScratch + "/" + std::to_string(worker), std::ios::binary);
            size_t n = 0;
            for (const Module& module : modules)
                for (const Row& row : module.rows) {
                    if (n++ % workers != worker) continue;
                    Entry e = entry(module, row);
                    out << e.operations.size() << "\n";
                    for (const std::string& op : e.operations) out << op << "\n";
                    out << e.text.size() << "\n" << e.text;
                }
            out.close();
            fflush(nullptr);
            _exit(out ? 0 : 1);
        }
        children.push_back(pid);
    }
    bool whole = true;
    for (pid_t pid : children) {
        int status = 0;
        whole = waitpid(pid, &status, 0) == pid && WIFEXITED(status) && WEXITSTATUS(status) == 0 &&
                whole;
    }
    if (!whole) {
        fprintf(stderr, "options_reference: a writer of entries failed\n");
        exit(1);
    }
    std::vector<std::vector<Entry>> all(modules.size());
    std::vector<std::ifstream> files;
    for (size_t worker = 0; worker < workers; ++worker)
        files.emplace_back(gScratch + "/" + std::to_string(worker), std::ios::binary);
    size_t n = 0;
    for (size_t i = 0; i < modules.size(); ++i)
        for (const Row& row : modules[i].rows) {
            std::ifstream& in = files[n++ % workers];
            Entry e{&row, "", {}};
            size_t count = 0;
            in >> count;
            in.ignore();
            for (std::string op; count-- > 0 && std::getline(in, op);) e.operations.insert(op);
            in >> count;
            in.ignore();
            e.text.resize(count);
            in.read(e.text.data(), static_cast<std::streamsize>(count));
            all[i].push_back(std::move(e));
        }
    return all;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc > 1 && std::string(argv[1]) == "--snapshot") return snapshot();
    Scratch scratch;
    if (scratch.path.empty()) {
        perror("options_reference: a scratch directory");
        return 1;
    }
    gScratch = scratch.path;
    const std::vector<Module>& modules = dumpbrel_test::registry();
    std::vector<std::vector<Entry>> sections = entries(modules);
    std::map<std::string, Words> callers;  // "IAudioCtrl.setAudioGain" -> "AudioCtrl `--x`"
    for (size_t i = 0; i < modules.size(); ++i)
        for (const Entry& e : sections[i])
            for (const std::string& op : e.operations)
                callers[op].push_back(modules[i].name + " " + code("--" + e.row->longName));

    printf("%s\n## Index\n\n### Sub-services\n\n", kHead);
    Words names;
    for (size_t i = 0; i < modules.size(); ++i)
        names.push_back("[" + modules[i].name + "](#" + anchor(modules[i].name) + ") (" +
                        std::to_string(sections[i].size()) + ")");
    printf("%s", wrap(join(names, ", ")).c_str());
    printf("\n### Operations\n\nEvery operation an option calls, with the interface, and the "
           "options that call it.\n\n");
    std::map<std::string, std::string> byName;  // sorted by the operation's own name
    for (const auto& [op, names] : callers)
        byName[anchor(op.substr(op.find('.') + 1)) + " " + op] = op;
    for (const auto& [key, op] : byName)
        printf("%s", wrap("- " + code(op.substr(op.find('.') + 1)) + " (" +
                                  op.substr(0, op.find('.')) + "): " + join(callers[op], ", "),
                          "  ")
                             .c_str());
    for (size_t i = 0; i < modules.size(); ++i) {
        printf("\n## %s\n", modules[i].name.c_str());
        for (const Entry& e : sections[i]) printf("\n%s", e.text.c_str());
    }
    return 0;
}
