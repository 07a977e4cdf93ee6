// What one key costs at the prompt, with the real vocabulary of all sub-services.
//
// Keys go in through a pipe on descriptor 0 and the editor reads them one byte at a time, as it
// does at a terminal; its output goes to /dev/null. Each batch is one line typed through
// Readline::handle_input: a few keys that set the line up, the measured key repeated, Enter.
// The set-up keys and Enter are timed with the batch but not counted; they weigh under 0.5%.
// One iteration is one key, or one pair where a benchmark's name says so ("+ Backspace" takes
// the completed text off again).
//
// The counter "writes" is the number of write() calls per iteration, counted on a
// packet socket in place of the terminal, where every write() arrives as one packet.

#include <fcntl.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <iostream>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include "framework/DumpBrel.h"
#include "shell/Readline.h"

using android::dumpbrel::DumpBrel;
using android::dumpbrel::Readline;

namespace {

const std::string kPrompt = "dumpbrel > ";
const std::string kUp = "\033[A", kLeft = "\033[D", kRight = "\033[C";
const char kTab = '\t', kBackspace = 127;

// The vocabulary the prompt builds at start: every sub-service and its long options.
const Readline::Vocabulary& vocabulary() {
    static const Readline::Vocabulary commands = [] {
        // The modules' constructors write nothing when the service is there; stderr stays.
        DumpBrel dumpBrel;
        android::dumpbrel::registerModules(dumpBrel);
        return dumpBrel.getModuleCommands();
    }();
    return commands;
}

// The sub-service with the most long options.
const std::string& largestModule() {
    static const std::string name = [] {
        const auto& all = vocabulary();
        auto largest = std::max_element(all.begin(), all.end(), [](const auto& a, const auto& b) {
            return a.second.size() < b.second.size();
        });
        return largest->first;
    }();
    return name;
}

// A word that `candidates` complete uniquely by one byte: some candidate less its last byte,
// which no other candidate begins with.
std::string oneByteShort(const std::vector<std::string>& candidates) {
    for (const auto& word : candidates) {
        std::string start = word.substr(0, word.size() - 1);
        size_t fits = std::count_if(candidates.begin(), candidates.end(), [&](const auto& c) {
            return c.compare(0, start.size(), start) == 0;
        });
        if (fits == 1) return start;
    }
    return candidates.front();
}

std::vector<std::string> names() {
    std::vector<std::string> all;
    for (const auto& entry : vocabulary()) all.push_back(entry.first);
    return all;
}

std::string repeat(const std::string& keys, int times) {
    std::string all;
    for (int i = 0; i < times; ++i) all += keys;
    return all;
}

// Descriptors 0 and 1 of the process while an editor runs; given back afterwards.
class Terminal {
public:
    Terminal() {
        std::cout.flush();
        mSavedIn = dup(0);
        mSavedOut = dup(1);
        int keys[2];
        if (pipe(keys) != 0) abort();
        fcntl(keys[1], F_SETPIPE_SZ, 1 << 20);
        dup2(keys[0], 0);
        close(keys[0]);
        mKeys = keys[1];
    }
    ~Terminal() {
        std::cout.flush();
        dup2(mSavedIn, 0);
        dup2(mSavedOut, 1);
        close(mSavedIn);
        close(mSavedOut);
        close(mKeys);
    }

    void toNull() {
        std::cout.flush();
        int null = open("/dev/null", O_WRONLY);
        dup2(null, 1);
        close(null);
    }

    // Standard output becomes a packet socket; returns the end that receives the packets.
    int toPackets() {
        std::cout.flush();
        int pair[2];
        if (socketpair(AF_UNIX, SOCK_SEQPACKET, 0, pair) != 0) abort();
        int size = 4 << 20;
        setsockopt(pair[0], SOL_SOCKET, SO_SNDBUF, &size, sizeof size);
        dup2(pair[0], 1);
        close(pair[0]);
        return pair[1];
    }

    void type(const std::string& keys) {
        for (size_t done = 0; done < keys.size();) {
            ssize_t n = write(mKeys, keys.data() + done, keys.size() - done);
            if (n <= 0) abort();
            done += static_cast<size_t>(n);
        }
    }

private:
    int mSavedIn, mSavedOut, mKeys;
};

size_t countPackets(int fd) {
    size_t packets = 0;
    char buffer[65536];
    while (recv(fd, buffer, sizeof buffer, MSG_DONTWAIT) >= 0) ++packets;
    return packets;
}

// A line of the editor: `setUp`, then `step` repeated, then Enter. `steps` is how many
// iterations one repetition of `step` makes. `history`, if any, is entered first.
struct Line {
    std::string setUp;
    std::string step;
    int steps;
    int repeats = 10000;
    std::vector<std::string> history = {};
};

void run(benchmark::State& state, const Line& line) {
    const std::string keys = line.setUp + repeat(line.step, line.repeats) + "\n";
    const int iterationsPerLine = line.repeats * line.steps;

    Terminal terminal;
    Readline readline(vocabulary());
    for (const auto& entry : line.history) readline.add_history(entry);

    // write() calls of one iteration: a line with three repetitions less one without.
    int packets = terminal.toPackets();
    auto writesOf = [&](int repeats) {
        terminal.type(line.setUp + repeat(line.step, repeats) + "\n");
        readline.handle_input(kPrompt);
        return countPackets(packets);
    };
    double writes = static_cast<double>(writesOf(3) - writesOf(0)) / (3 * line.steps);
    close(packets);

    terminal.toNull();
    while (state.KeepRunningBatch(iterationsPerLine)) {
        terminal.type(keys);
        benchmark::DoNotOptimize(readline.handle_input(kPrompt));
    }
    state.counters["writes"] = writes;
}

// A printable byte typed in the middle of a 60-byte line and taken off again: both redraw the
// whole line and put the cursor back 30 places.
void BM_Key(benchmark::State& state) {
    run(state, {std::string(60, 'a') + repeat(kLeft, 30), std::string("x") + kBackspace, 2});
}

void BM_LeftRight(benchmark::State& state) {
    run(state, {std::string(60, 'a') + repeat(kLeft, 30), kLeft + kRight, 2});
}

// Up through a history of 1000 lines, from the newest to the oldest.
void BM_HistoryUp(benchmark::State& state) {
    std::vector<std::string> history;
    const auto& all = vocabulary();
    auto entry = all.begin();
    for (int i = 0; history.size() < 1000; ++i) {
        const auto& options = entry->second;
        history.push_back(entry->first + " " + options[i % options.size()] + " " +
                          std::to_string(i));
        if (++entry == all.end()) entry = all.begin();
    }
    // One line walks up the whole history once, from the newest entry to the oldest.
    run(state, {"", kUp, 1, static_cast<int>(history.size()), history});
}

// Tab completing a sub-service name over all names (one byte is missing), then Backspace.
void BM_TabName(benchmark::State& state) {
    run(state, {oneByteShort(names()), std::string(1, kTab) + kBackspace, 1});
}

// Tab completing a long option over all options of the largest sub-service, then Backspace.
void BM_TabOption(benchmark::State& state) {
    const auto& options = vocabulary().at(largestModule());
    run(state, {largestModule() + " " + oneByteShort(options), std::string(1, kTab) + kBackspace, 1});
}

// Tab on an empty line: every sub-service name listed, the prompt written again.
void BM_TabListNames(benchmark::State& state) {
    run(state, {"", std::string(1, kTab), 1});
}

// Two Tabs behind the largest sub-service's name: the first finds the name complete, the
// second lists all its long options.
void BM_TabListOptions(benchmark::State& state) {
    run(state, {largestModule() + " ", std::string(2, kTab), 1});
}

}  // namespace

BENCHMARK(BM_Key)->Name("key: printable, redraw of a 60-byte line");
BENCHMARK(BM_LeftRight)->Name("key: Left or Right");
BENCHMARK(BM_HistoryUp)->Name("key: Up through 1000 history lines");
BENCHMARK(BM_TabName)->Name("Tab over sub-service names + Backspace");
BENCHMARK(BM_TabOption)->Name("Tab over the largest module's options + Backspace");
BENCHMARK(BM_TabListNames)->Name("Tab listing all sub-service names");
BENCHMARK(BM_TabListOptions)->Name("2 Tabs listing the largest module's options");

int main(int argc, char** argv) {
    // Standard output as at a terminal: line-buffered, so that every newline is written at once.
    setvbuf(stdout, nullptr, _IOLBF, BUFSIZ);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
