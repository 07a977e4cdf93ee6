// The argument sweep: every long option of every registered sub-service, each with a set of
// hostile values, against a neutral panel, the built-in panel and a service whose interfaces
// are all absent. A run is the binary's entry called in a forked child (no exec), with standard
// output on /dev/null and standard error read back. A run passes when it
//   - ends by itself within 5 seconds, with status 0 and no signal,
//   - leaves no sanitizer report (in the sanitizer build) and no failed standard stream,
//   - writes at most one line of its own for an option with an argument ("<sub-service>
//     --<option>: ..."), and when such a line quotes a refused text, the text is (part of)
//     what was given,
//   - with the 64 KiB word, sends the service that word whole or nothing of it: no call in the
//     trace holds a cut piece of it.
// One child runs all values of one option against all panels one after the other, as the
// prompt runs lines, and marks the end of each run on standard error. When a run kills its
// child, the runs behind it in the batch get a child of their own.
//
//     argument_sweep [-j jobs] [-m sub-service]... [-v]
//
// -v lists, before the summary, each distinct line the runs wrote to standard error, once.

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <deque>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "Registry.h"
#include "framework/DumpBrel.h"
#include "sim/Panel.h"
#include "tests/RunAs.h"

// Present in sanitizer runtimes only: a leak check that a forked child can run before _exit.
extern "C" int __lsan_do_recoverable_leak_check() __attribute__((weak));

namespace {

using Clock = std::chrono::steady_clock;
using dumpbrel_fuzz::Module;
using dumpbrel_fuzz::Row;

constexpr char kFill = 'w';  // the byte of the 64 KiB word: no digit, no hex digit, no comma
constexpr size_t kLongWord = 64 * 1024;
constexpr size_t kShortestCut = 16;  // shorter runs of the byte occur in ordinary names
constexpr auto kTimeLimit = std::chrono::seconds(5);
const std::string kMark = "\x01\x02sweep-end ";  // a child's line behind each run: status

struct Value {
    const char* label;
    std::string text;
};

std::vector<Value> hostileValues() {
    std::string high;
    for (int b = 0x80; b <= 0xff; ++b) high += static_cast<char>(b);
    return {
        {"empty", ""},
        {"-1", "-1"},
        {"0", "0"},
        {"0x10", "0x10"},
        {"2147483648", "2147483648"},
        {"-2147483649", "-2147483649"},
        {"30 digits", "123456789012345678901234567890"},
        {"abc", "abc"},
        {"1,2", "1,2"},
        {",,,,", ",,,,"},
        {"%s%n%s", "%s%n%s"},
        {"64 KiB word", std::string(kLongWord, kFill)},
        {"bytes 0x80-0xff", high},
        {"embedded newline", "1\n2"},
    };
}

struct Panel {
    const char* label;
    std::string profile;  // BREL_SIM_PANEL; empty for the built-in profile
    const char* absent;   // BREL_SIM_ABSENT, or null
};

struct Job {
    const Module* module;
    const Row* row;
    const Value* value;
    const Panel* panel;
};

using Batch = std::vector<Job>;

struct Slot {
    pid_t pid = -1;
    int err = -1;  // read end of the child's standard error
    std::string errText;
    Clock::time_point lastEnd;  // start of the child or end of its latest run
    bool timedOut = false;
    Batch batch;
    size_t done = 0;  // runs of the batch that have ended
};

// Text of a word for a report line: printable ASCII as it is, the rest as \xNN, long words cut.
std::string shown(const std::string& text, size_t cut = 40) {
    std::string out;
    for (unsigned char c : text.substr(0, cut)) {
        if (c >= 0x20 && c < 0x7f && c != '\\') {
            out += static_cast<char>(c);
        } else {
            char hex[8];
            snprintf(hex, sizeof hex, "\\x%02x", c);
            out += hex;
        }
    }
    if (text.size() > cut) out += "...(" + std::to_string(text.size()) + " bytes)";
    return out;
}

// The text between the last `: "` and the final quote of a refusal line, its \xNN escapes
// undone; false when the line quotes nothing.
bool quotedText(const std::string& line, std::string& out) {
    size_t open = line.rfind(": \"");
    if (line.size() < 2 || line.back() != '"' || open == std::string::npos ||
        open + 3 > line.size() - 1)
        return false;
    std::string inner = line.substr(open + 3, line.size() - 1 - (open + 3));
    out.clear();
    for (size_t i = 0; i < inner.size(); ++i) {
        if (inner[i] == '\\' && i + 3 < inner.size() && inner[i + 1] == 'x') {
            out += static_cast<char>(strtol(inner.substr(i + 2, 2).c_str(), nullptr, 16));
            i += 3;
        } else {
            out += inner[i];
        }
    }
    return true;
}

std::vector<std::string> lines(const std::string& text) {
    std::vector<std::string> out;
    std::istringstream in(text);
    for (std::string line; std::getline(in, line);) out.push_back(line);
    return out;
}

std::string readFile(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

// The longest run of kFill in `text` that is shorter than the whole word and long enough to be
// a piece of it, 0 if none.
size_t longestCut(const std::string& text) {
    size_t longest = 0, run = 0;
    for (char c : text) {
        run = c == kFill ? run + 1 : 0;
        if (run >= kShortestCut && run < kLongWord && run > longest) longest = run;
        if (run == kLongWord) longest = 0;  // the whole word: passed through
    }
    return longest;
}

class Sweep {
public:
    Sweep(std::vector<Module> modules, int jobs, bool verbose)
        : mModules(std::move(modules)), mValues(hostileValues()), mJobs(jobs), mVerbose(verbose) {}

    int run();

private:
    std::vector<Module> mModules;
    std::vector<Value> mValues;
    std::vector<Panel> mPanels;
    int mJobs;
    bool mVerbose;
    // -v: each distinct line the runs wrote to standard error, in the order first seen, with
    // how many runs wrote it and the first run that did.
    std::vector<std::string> mLines;
    std::map<std::string, std::pair<size_t, std::string>> mLineRuns;
    std::string mDir;
    std::deque<Batch> mQueue;
    size_t mRuns = 0;
    size_t mFindings = 0;

    std::string tracePath(size_t slot, size_t run) const;
    void start(Slot& slot, Batch batch, size_t index);
    [[noreturn]] void child(const Batch& batch, size_t index, int errWrite);
    void takeMarks(Slot& slot, size_t index);
    void finishChild(Slot& slot, size_t index, int wstatus);
    void check(const Job& job, int status, const std::string& err, const std::string& trace);
    void finding(const Job& job, const std::string& what, const std::string& err);
};

// The trace file of a slot's run (its place in the batch).
std::string Sweep::tracePath(size_t slot, size_t run) const {
    return mDir + "/trace-" + std::to_string(slot) + "-" + std::to_string(run);
}

void Sweep::start(Slot& slot, Batch batch, size_t index) {
    slot = Slot{};
    slot.batch = std::move(batch);
    int pipeFds[2];
    if (pipe2(pipeFds, O_CLOEXEC) != 0) {
        perror("sweep: pipe");
        exit(2);
    }
    std::cout.flush();
    fflush(nullptr);
    pid_t pid = fork();
    if (pid < 0) {
        perror("sweep: fork");
        exit(2);
    }
    if (pid == 0) {
        close(pipeFds[0]);
        child(slot.batch, index, pipeFds[1]);
    }
    close(pipeFds[1]);
    slot.pid = pid;
    slot.err = pipeFds[0];
    slot.lastEnd = Clock::now();
}

void Sweep::child(const Batch& batch, size_t index, int errWrite) {
    int null = open("/dev/null", O_RDWR);
    dup2(null, 0);
    dup2(null, 1);
    dup2(errWrite, 2);
    for (size_t run = 0; run < batch.size(); ++run) {
        const Job& job = batch[run];
        std::string trace = tracePath(index, run);
        if (!job.panel->profile.empty())
            setenv("BREL_SIM_PANEL", job.panel->profile.c_str(), 1);
        else
            unsetenv("BREL_SIM_PANEL");
        if (job.panel->absent)
            setenv("BREL_SIM_ABSENT", job.panel->absent, 1);
        else
            unsetenv("BREL_SIM_ABSENT");
        // The trace is read only for the long word, where it shows what reached the service.
        if (job.value->text.size() == kLongWord)
            setenv("BREL_SIM_TRACE", trace.c_str(), 1);
        else
            unsetenv("BREL_SIM_TRACE");
        sim::Panel::reset();

        std::vector<std::string> words{"dumpbrel", job.module->name, "--" + job.row->longName,
                                       job.value->text};
        std::vector<char*> argv;
        for (auto& word : words) argv.push_back(word.data());
        argv.push_back(nullptr);
        int status = android::dumpbrel::dumpbrelMain(static_cast<int>(words.size()), argv.data());
        std::cout.flush();
        std::cerr.flush();
        fflush(nullptr);
        if (!std::cout.good() || !std::cerr.good()) {
            std::cout.clear();
            std::cerr.clear();
            fputs("sweep: a standard stream was left failed\n", stderr);
            status = 3;
        }
        fprintf(stderr, "%s%d\n", kMark.c_str(), status);
        fflush(stderr);
    }
    if (__lsan_do_recoverable_leak_check && __lsan_do_recoverable_leak_check() != 0) _exit(4);
    _exit(0);
}

// Handles every run of the slot's batch whose end mark has arrived.
void Sweep::takeMarks(Slot& slot, size_t index) {
    for (size_t at; (at = slot.errText.find(kMark)) != std::string::npos;) {
        size_t end = slot.errText.find('\n', at);
        if (end == std::string::npos) return;
        int status = atoi(slot.errText.c_str() + at + kMark.size());
        std::string err = slot.errText.substr(0, at);
        slot.errText.erase(0, end + 1);
        std::string trace = tracePath(index, slot.done);
        const Job& job = slot.batch[slot.done++];
        check(job, status, err, job.value->text.size() == kLongWord ? readFile(trace) : "");
        unlink(trace.c_str());
        slot.lastEnd = Clock::now();
    }
}

void Sweep::finishChild(Slot& slot, size_t index, int wstatus) {
    takeMarks(slot, index);
    for (size_t run = slot.done; run < slot.batch.size(); ++run)
        unlink(tracePath(index, run).c_str());
    if (slot.done < slot.batch.size()) {
        // The run under way ended the child; the runs behind it get a child of their own.
        const Job& job = slot.batch[slot.done];
        ++mRuns;
        if (slot.timedOut)
            finding(job, "no end within 5 s", slot.errText);
        else if (WIFSIGNALED(wstatus))
            finding(job, std::string("killed by signal ") + strsignal(WTERMSIG(wstatus)),
                    slot.errText);
        else
            finding(job, "the process ended with status " + std::to_string(WEXITSTATUS(wstatus)),
                    slot.errText);
        if (slot.done + 1 < slot.batch.size())
            mQueue.push_front(Batch(slot.batch.begin() + slot.done + 1, slot.batch.end()));
    } else if (WIFSIGNALED(wstatus) || WEXITSTATUS(wstatus) != 0) {
        finding(slot.batch.front(),
                WIFEXITED(wstatus) && WEXITSTATUS(wstatus) == 4
                    ? "memory leaked in the runs of this option"
                    : "the process ended badly after its runs",
                slot.errText);
    }
}

void Sweep::check(const Job& job, int status, const std::string& err, const std::string& trace) {
    ++mRuns;
    if (status != 0) {
        finding(job, "the run ended with status " + std::to_string(status), err);
    } else if (err.find("Sanitizer") != std::string::npos ||
               err.find("runtime error:") != std::string::npos) {
        finding(job, "sanitizer report", err);
    } else {
        std::string prefix = job.module->name + " --" + job.row->longName + ": ";
        int own = 0;
        for (const auto& line : lines(err)) {
            if (line.compare(0, prefix.size(), prefix) != 0) continue;
            ++own;
            std::string refused;
            if (quotedText(line, refused) && job.value->text.find(refused) == std::string::npos)
                finding(job, "the refusal quotes a text that was not given: " + shown(refused),
                        err);
        }
        // Behind an option without argument the value is words of its own, and may name the
        // option again by its letter; only an argument is sure to reach the row once.
        if (own > 1 && job.row->hasArg == 1)
            finding(job, std::to_string(own) + " lines for one refusal", err);
        size_t cut = longestCut(trace);
        if (cut > 0)
            finding(job,
                    "the service got a piece of " + std::to_string(cut) +
                        " bytes of the 64 KiB word",
                    trace.substr(0, 2000));
    }
    if (!mVerbose) return;
    std::set<std::string> once;  // a line counts once per run
    for (const auto& line : lines(err)) {
        if (!once.insert(line).second) continue;
        auto& seen = mLineRuns[line];
        if (seen.first++ == 0) {
            mLines.push_back(line);
            seen.second = job.module->name + " --" + job.row->longName + " <" +
                          job.value->label + "> (" + job.panel->label + " panel)";
        }
    }
}

void Sweep::finding(const Job& job, const std::string& what, const std::string& err) {
    ++mFindings;
    if (mFindings > 50) return;
    std::cout << "FINDING: " << job.module->name << " --" << job.row->longName << " <"
              << job.value->label << "> (" << job.panel->label << " panel): " << what << '\n';
    std::vector<std::string> errLines = lines(err);
    for (size_t i = 0; i < errLines.size() && i < 12; ++i)
        std::cout << "    stderr: " << shown(errLines[i]) << '\n';
    std::cout.flush();
}

int Sweep::run() {
    char dir[] = "/tmp/dumpbrel-sweep-XXXXXX";
    if (!mkdtemp(dir)) {
        perror("sweep: mkdtemp");
        return 2;
    }
    mDir = dir;
    setenv("BREL_PROPERTY_DIR", (mDir + "/properties").c_str(), 1);
    std::string neutral = mDir + "/neutral.json";
    std::ofstream(neutral) << "{}\n";
    mPanels = {{"neutral", neutral, nullptr}, {"built-in", "", nullptr}, {"absent", "", "all"}};

    size_t options = 0;
    for (const auto& module : mModules)
        for (const auto& row : module.rows) {
            if (row.longName.empty()) continue;
            ++options;
            Batch batch;
            for (const auto& panel : mPanels)
                for (const auto& value : mValues) batch.push_back({&module, &row, &value, &panel});
            mQueue.push_back(std::move(batch));
        }

    auto began = Clock::now();
    std::vector<Slot> slots(mJobs);
    size_t running = 0;
    while (!mQueue.empty() || running > 0) {
        for (size_t i = 0; i < slots.size() && !mQueue.empty(); ++i) {
            if (slots[i].pid >= 0) continue;
            start(slots[i], std::move(mQueue.front()), i);
            mQueue.pop_front();
            ++running;
        }
        std::vector<pollfd> fds;
        std::vector<size_t> owner;
        bool exiting = false;  // a child whose standard error has ended but that is not reaped
        for (size_t i = 0; i < slots.size(); ++i) {
            if (slots[i].pid < 0) continue;
            if (slots[i].err < 0) {
                exiting = true;
                continue;
            }
            fds.push_back({slots[i].err, POLLIN, 0});
            owner.push_back(i);
        }
        if (!fds.empty()) poll(fds.data(), fds.size(), exiting ? 1 : 100);
        for (size_t k = 0; k < fds.size(); ++k) {
            if (!(fds[k].revents & (POLLIN | POLLHUP | POLLERR))) continue;
            Slot& slot = slots[owner[k]];
            char buffer[65536];
            ssize_t n = read(slot.err, buffer, sizeof buffer);
            if (n > 0) {
                if (slot.errText.size() < (4u << 20)) slot.errText.append(buffer, n);
                takeMarks(slot, owner[k]);
            } else if (n == 0 || errno != EINTR) {
                close(slot.err);
                slot.err = -1;
            }
        }
        for (size_t i = 0; i < slots.size(); ++i) {
            Slot& slot = slots[i];
            if (slot.pid < 0) continue;
            if (!slot.timedOut && Clock::now() - slot.lastEnd > kTimeLimit) {
                slot.timedOut = true;
                kill(slot.pid, SIGKILL);
            }
            if (slot.err >= 0) continue;  // its standard error has not ended yet
            int wstatus = 0;
            pid_t done = waitpid(slot.pid, &wstatus, slot.timedOut ? 0 : WNOHANG);
            if (done == 0) {
                if (fds.empty()) usleep(200);
                continue;
            }
            finishChild(slot, i, wstatus);
            slot.pid = -1;
            --running;
        }
    }
    double seconds = std::chrono::duration<double>(Clock::now() - began).count();

    std::error_code ignored;
    std::filesystem::remove_all(mDir, ignored);
    for (const auto& line : mLines) {
        const auto& seen = mLineRuns[line];
        printf("%6zu runs, first %s: %s\n", seen.first, seen.second.c_str(),
               shown(line, 200).c_str());
    }
    printf("sweep: %zu sub-services, %zu long options, %zu values, %zu panels: %zu runs in %.1f s\n",
           mModules.size(), options, mValues.size(), mPanels.size(), mRuns, seconds);
    printf("sweep: %zu findings\n", mFindings);
    return mFindings == 0 ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
    int jobs = 2;
    bool verbose = false;
    std::set<std::string> only;
    for (int opt; (opt = getopt(argc, argv, "j:m:v")) != -1;) {
        switch (opt) {
            case 'j':
                jobs = atoi(optarg) > 0 ? atoi(optarg) : 1;
                break;
            case 'm':
                only.insert(optarg);
                break;
            case 'v':
                verbose = true;
                break;
            default:
                fprintf(stderr, "usage: %s [-j jobs] [-m sub-service]... [-v]\n", argv[0]);
                return 2;
        }
    }
    if (!dumpbrel_test::runAsToolUser()) {
        printf("sweep: skipped: not root, and no user namespaces\n");
        return 77;
    }
    dumpbrel_test::clearBrelEnvironment();
    std::vector<Module> modules = dumpbrel_fuzz::walkRegistry();
    if (!only.empty()) {
        std::vector<Module> chosen;
        for (auto& module : modules)
            if (only.count(module.name)) chosen.push_back(std::move(module));
        modules = std::move(chosen);
    }
    if (modules.empty()) {
        printf("sweep: no sub-service registered\n");
        return 1;
    }
    signal(SIGPIPE, SIG_IGN);
    return Sweep(std::move(modules), jobs, verbose).run();
}
