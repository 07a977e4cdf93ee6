#include "Fixtures.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>

#include "RunAs.h"
#include "framework/DumpBrel.h"
#include "framework/Report.h"
#include "sim/Panel.h"

namespace dumpbrel_test {

namespace {

// What the tests start sees none of the user's BREL_* variables.
const bool gCleared = (clearBrelEnvironment(), true);

std::string readFile(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

// The command line that starts the binary with word 0 "dumpbrel"; under qemu through its -0.
std::vector<std::string> commandLine(const std::vector<std::string>& args) {
    std::istringstream emulator(DUMPBREL_EMULATOR);
    std::vector<std::string> words;
    for (std::string w; emulator >> w;) words.push_back(w);
    if (!words.empty()) words.insert(words.end(), {"-0", "dumpbrel"});
    words.push_back(DUMPBREL_BIN);
    words.insert(words.end(), args.begin(), args.end());
    return words;
}

void redirect(int fd, const std::string& path, int flags) {
    int opened = open(path.c_str(), flags, 0666);
    dup2(opened, fd);
    close(opened);
}

[[noreturn]] void execWords(std::vector<std::string> words) {
    std::vector<char*> argv;
    for (auto& w : words) argv.push_back(w.data());
    argv.push_back(nullptr);
    std::string path = argv[0];
    argv[0] = const_cast<char*>(path == DUMPBREL_BIN ? "dumpbrel" : path.c_str());
    execvp(path.c_str(), argv.data());
    _exit(127);
}

}  // namespace

// Starts a run of `start` in a child whose environment, panel and standard streams are set up,
// which then does `run`; waits for it and collects what it left.
template <typename Run>
Result runChild(const Start& start, Run body) {
    char dirTemplate[] = "/tmp/dumpbrel-test-XXXXXX";
    std::string dir = mkdtemp(dirTemplate);
    chmod(dir.c_str(), 0777);
    const std::string out = dir + "/out", err = dir + "/err", trace = dir + "/trace";
    std::string input = "/dev/null";
    if (start.input) std::ofstream(input = dir + "/in", std::ios::binary) << *start.input;
    std::string panel;
    if (start.panel) std::ofstream(panel = dir + "/panel.json") << *start.panel;

    std::cout.flush();
    fflush(nullptr);  // nothing of this process's buffers may reach the child's output
    pid_t pid = fork();
    if (pid == 0) {
        clearBrelEnvironment(dir + "/properties");
        setenv("BREL_SIM_TRACE", trace.c_str(), 1);
        if (start.panel) setenv("BREL_SIM_PANEL", panel.c_str(), 1);
        for (const auto& [name, value] : start.env) setenv(name.c_str(), value.c_str(), 1);
        redirect(0, input, O_RDONLY);
        redirect(1, out, O_WRONLY | O_CREAT | O_TRUNC);
        redirect(2, err, O_WRONLY | O_CREAT | O_TRUNC);
        if (!(start.uid >= 0 ? runAs(start.uid) : runAsToolUser())) {
            fprintf(stderr, "cannot run as uid %d: not root, and no user namespaces\n", start.uid);
            _exit(126);
        }
        alarm(30);  // survives exec: a run that hangs is killed
        body();
    }
    int wstatus = 0;
    waitpid(pid, &wstatus, 0);
    Result run{readFile(out), readFile(err), readFile(trace), -1};
    run.status = WIFEXITED(wstatus) ? WEXITSTATUS(wstatus) : 128 + WTERMSIG(wstatus);
    std::filesystem::remove_all(dir);
    return run;
}

Result runBinary(const Start& start) {
    return runChild(start, [&] { execWords(commandLine(start.args)); });
}

Result runEntry(const Start& start) {
    return runChild(start, [&] {
        sim::Panel::reset();  // the panel and the report read the environment set above afresh
        android::dumpbrel::report::reset();
        std::vector<std::string> words = start.args;
        words.insert(words.begin(), "dumpbrel");
        std::vector<char*> argv;
        for (auto& w : words) argv.push_back(w.data());
        argv.push_back(nullptr);
        int status = android::dumpbrel::dumpbrelMain(static_cast<int>(words.size()), argv.data());
        std::cout.flush();
        fflush(nullptr);
        _exit(status);
    });
}

void execBinary(const std::vector<std::string>& args) {
    if (!runAsToolUser()) _exit(126);
    execWords(commandLine(args));
}

bool canRunAs(int uid) {
    pid_t pid = fork();
    if (pid == 0) _exit(runAs(uid) ? 0 : 1);
    int wstatus = 0;
    waitpid(pid, &wstatus, 0);
    return WIFEXITED(wstatus) && WEXITSTATUS(wstatus) == 0;
}

}  // namespace dumpbrel_test
