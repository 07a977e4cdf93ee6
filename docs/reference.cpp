// Writes docs/options.md, the reference of every option, to standard output. Everything in it is
// learnt from the tables the binary is built from, the table of the service's shape and from
// running the rows through the binary's entry against the simulated panel. Rewrite it after a
// change to any table:
//     cmake --build build --target options_reference &&
//         build/docs/options_reference > docs/options.md
// With --snapshot it writes record/snapshot.txt instead.

#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

#include "Entry.h"
#include "Letters.h"
#include "Text.h"

namespace reference {

namespace {

constexpr const char* kHead = R"head(# Every option

Written by `docs/reference.cpp` from the option tables, the service's declarations and runs of
every row against the simulated panel's built-in profile; do not edit. Sub-services by name, each
option in the order of its option list (`dumpbrel <sub-service> -h`). Search for an option
(`--getSN`), a letter (`` `-g` ``) or a word (serial, mute, hdmi).

**An entry** is headed by the option's letters and long form, its argument's fields named as the
parameters they reach (`--setAudioGain=<module>,<value>`) or by the words they take (`on|off`).
Then a run as a terminal shows it: the command, after `#` the calls the panel received, what it
printed (standard error after `!`; a tab `\t`, a blank ending a line `\x20`, another control byte
`\xNN`, a backslash `\\`). Then what the run does not show: how a field is read where not as
below, what each word does, what the option list says of it, whether the option changes the panel
(calls an operation whose name does not begin with `get`, `Get`, `is`, `Is` or `read`) and what
the simulated panel's memory (`BREL_SIM_STATE`) then answers, what an abbreviation stands for,
what its letter runs.

**Arguments.** Fields are apart by `,` unless the head shows another mark. A field is a number,
read as C's `atoi` reads it: text that is no number counts as 0, and so does a field left out;
text after the last field is not read. An entry says where a field is read otherwise. Where text
that is no number is refused, so is an empty argument. `<ignored>` is a field that is not read.

**Letters.** Where several options are listed with one letter, that letter runs the last of them;
whether it takes an argument is decided by the letter's first place in the option list, a colon
after it meaning it does. Letters of several characters are read one character at a time. Each
sub-service lists its shared letters; an entry says what its letters run (given `1` where the
option takes an argument) wherever that is not simply this option.
)head";

std::string anchor(const std::string& name) {
    std::string lower;
    for (char c : name) lower += static_cast<char>(tolower(static_cast<unsigned char>(c)));
    return lower;
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

// The entries of every row but help. The runs are nearly all of the cost, so children share the
// sub-services (each a whole one, its entries in order: an abbreviation is spelled out once in
// it), the largest first to the one with least to do; each writes its entries to the scratch
// directory, and they are read back in order: the operations a line each, then the text, each
// after its count.
std::vector<std::vector<Entry>> entries(const std::vector<Module>& modules,
                                        const std::string& scratch) {
    const size_t workers = std::clamp<size_t>(std::thread::hardware_concurrency(), 1, 8);
    std::vector<size_t> bySize(modules.size());
    for (size_t m = 0; m < bySize.size(); ++m) bySize[m] = m;
    std::stable_sort(bySize.begin(), bySize.end(), [&](size_t a, size_t b) {
        return modules[a].rows.size() > modules[b].rows.size();
    });
    std::vector<std::vector<size_t>> share(workers);
    std::vector<size_t> load(workers);
    for (size_t m : bySize) {
        size_t least = std::min_element(load.begin(), load.end()) - load.begin();
        share[least].push_back(m);
        load[least] += modules[m].rows.size();
    }
    auto isEntry = [](const Row& row) { return row.longName != "help"; };
    fflush(nullptr);
    std::vector<pid_t> children;
    for (size_t worker = 0; worker < workers; ++worker) {
        pid_t pid = fork();
        if (pid == 0) {
            Runs runs(scratch);
            std::ofstream out(scratch + "/" + std::to_string(worker), std::ios::binary);
            for (size_t m : share[worker]) {
                std::set<std::string> told;
                for (const Row& row : modules[m].rows) {
                    if (!isEntry(row)) continue;
                    Entry e = entry(runs, modules[m], row, told);
                    out << e.operations.size() << "\n";
                    for (const std::string& op : e.operations) out << op << "\n";
                    out << e.text.size() << "\n" << e.text;
                }
            }
            out.close();
            _exit(out ? 0 : 1);
        }
        children.push_back(pid);
    }
    bool failed = false;
    for (pid_t pid : children) {
        int status = 0;
        waitpid(pid, &status, 0);
        failed = failed || !WIFEXITED(status) || WEXITSTATUS(status) != 0;
    }
    if (failed) {
        fprintf(stderr, "options_reference: a worker failed\n");
        exit(1);
    }
    std::vector<std::vector<Entry>> all(modules.size());
    for (size_t worker = 0; worker < workers; ++worker) {
        std::ifstream from(scratch + "/" + std::to_string(worker), std::ios::binary);
        for (size_t m : share[worker])
            for (const Row& row : modules[m].rows) {
                if (!isEntry(row)) continue;
                Entry e;
                size_t count = 0;
                from >> count;
                from.ignore();
                for (std::string op; count > 0 && std::getline(from, op); --count)
                    e.operations.insert(op);
                size_t size = 0;
                from >> size;
                from.ignore();
                e.text.resize(size);
                from.read(e.text.data(), static_cast<std::streamsize>(size));
                all[m].push_back(std::move(e));
            }
    }
    return all;
}

// The index: the sub-services, and the operations an option of another name calls.
std::string index(const std::vector<Module>& modules, const std::vector<size_t>& order,
                  const std::vector<std::vector<Entry>>& all) {
    Words links;
    for (size_t m : order)
        links.push_back("[" + modules[m].name + "](#" + anchor(modules[m].name) + ") (" +
                        std::to_string(all[m].size()) + ")");
    std::string text = "## Index\n" + wrap(join(links, ", ") + ".") + "\n";
    // operation: the options of other names that call it, by sub-service
    std::map<std::string, std::vector<std::pair<std::string, Words>>> callers;
    std::map<std::string, bool> named;  // operation: an option of its own name calls it
    for (size_t m : order) {
        size_t e = 0;
        for (const Row& row : modules[m].rows) {
            if (row.longName == "help") continue;
            for (const std::string& op : all[m][e].operations) {
                std::string name = op.substr(op.find('.') + 1);
                named[name] = named[name] || name == row.longName;
                auto& by = callers[name];
                if (by.empty() || by.back().first != modules[m].name)
                    by.push_back({modules[m].name, {}});
                by.back().second.push_back(code("--" + row.longName));
            }
            ++e;
        }
    }
    // Operations that the same options call share a line.
    std::vector<std::pair<std::string, Words>> groups;  // the options, their operations
    for (const auto& [op, by] : callers) {
        if (named[op]) continue;
        Words options;
        for (const auto& [module, longForms] : by)
            options.push_back(module + " " + join(longForms, ", "));
        const std::string who = join(options, "; ");
        auto same = std::find_if(groups.begin(), groups.end(),
                                 [&](const auto& g) { return g.first == who; });
        if (same == groups.end()) groups.push_back({who, {code(op)}});
        else same->second.push_back(code(op));
    }
    Words lines;
    for (const auto& [who, ops] : groups)
        lines.push_back(wrap("- " + join(ops, ", ") + ": " + who, "  "));
    if (!lines.empty())
        text += "Operations that options of other names call:\n" + join(lines, "") + "\n";
    return text;
}

// record/snapshot.txt: a line for the prompt for every option without argument that calls only
// reading operations, on the built-in panel and on a neutral one alike.
int snapshot() {
    for (const dumpbrel_test::RowRun& run : dumpbrel_test::rowRuns()) {
        if (run.row.hasArg != 0) continue;
        Result plain = dumpbrel_test::runEntry({run.module.name, "--" + run.row.longName});
        std::vector<Call> calls = Runs::calls(run.module, plain.calls + run.abc.calls);
        if (calls.empty() || !std::all_of(calls.begin(), calls.end(),
                                          [](const Call& c) { return reads(c.operation); }))
            continue;
        printf("%s --%s\n", run.module.name.c_str(), run.row.longName.c_str());
    }
    return 0;
}

}  // namespace

}  // namespace reference

int main(int argc, char** argv) {
    using namespace reference;
    if (argc > 1 && std::string(argv[1]) == "--snapshot") return snapshot();
    Scratch scratch;
    const std::vector<Module>& modules = dumpbrel_test::registry();
    std::vector<std::vector<Entry>> all = entries(modules, scratch.path);
    std::vector<size_t> order(modules.size());
    for (size_t m = 0; m < order.size(); ++m) order[m] = m;
    std::sort(order.begin(), order.end(), [&](size_t a, size_t b) {
        return anchor(modules[a].name) < anchor(modules[b].name);
    });

    std::string text = std::string(kHead) + "\n" + index(modules, order, all);
    Runs runs(scratch.path);
    for (size_t m : order) {
        const Module& module = modules[m];
        text += "## " + module.name + "\n";
        Words clashes = Letters(runs, module).clashes();
        if (!clashes.empty()) text += wrap("Shared letters: " + join(clashes, " "));
        for (const Entry& e : all[m]) text += e.text;
        text += "\n";
    }
    text.pop_back();
    std::istringstream lines(text);
    size_t number = 0;
    for (std::string line; std::getline(lines, line);)
        if (++number, line.size() > kWidth) {
            fprintf(stderr, "options_reference: line %zu is %zu columns, over %zu: %s\n", number,
                    line.size(), kWidth, line.c_str());
            return 1;
        }
    fputs(text.c_str(), stdout);
    return 0;
}
