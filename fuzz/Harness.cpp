#include "Harness.h"

#include <fcntl.h>
#include <unistd.h>

#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <iostream>

#include "framework/DumpBrel.h"
#include "sim/Panel.h"
#include "tests/RunAs.h"

// Present in sanitizer runtimes only.
extern "C" void __sanitizer_set_report_fd(void* fd) __attribute__((weak));

namespace dumpbrel_fuzz {

namespace {

int gReportFd = 2;
std::string gScratch, gNeutralProfile;

}  // namespace

void setUp() {
    static bool done = false;
    if (done) return;
    done = true;
    // The tool runs only as root or the shell user: anybody else runs it in a user namespace of
    // its own, as the tests do; with neither at hand there is nothing to fuzz.
    if (!dumpbrel_test::runAsToolUser()) {
        fprintf(stderr, "dumpbrel fuzz: skipped: not root, and no user namespaces\n");
        exit(77);
    }
    int fd = fcntl(2, F_DUPFD_CLOEXEC, 10);
    if (fd >= 0) gReportFd = fd;
    if (__sanitizer_set_report_fd)
        __sanitizer_set_report_fd(reinterpret_cast<void*>(static_cast<intptr_t>(gReportFd)));
    int null = open("/dev/null", O_RDONLY);
    if (null >= 0) {
        dup2(null, 0);
        if (null != 0) close(null);
    }

    // Its own scratch directory: the neutral profile and the property store, nothing of the
    // user's environment.
    char dir[] = "/tmp/dumpbrel-fuzz-XXXXXX";
    gScratch = mkdtemp(dir) ? dir : "";
    gNeutralProfile = gScratch + "/neutral.json";
    int profile = open(gNeutralProfile.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
    if (gScratch.empty() || profile < 0 || write(profile, "{}\n", 3) != 3) {
        report("dumpbrel fuzz: cannot write a neutral profile in /tmp");
        abort();
    }
    close(profile);
    dumpbrel_test::clearBrelEnvironment(gScratch + "/properties");
    atexit([] {
        std::error_code ignored;
        std::filesystem::remove_all(gScratch, ignored);
    });
}

void useProfile(Profile profile) {
    if (profile == Profile::kNeutral)
        setenv("BREL_SIM_PANEL", gNeutralProfile.c_str(), 1);
    else
        unsetenv("BREL_SIM_PANEL");
    unsetenv("BREL_SIM_ABSENT");
    unsetenv("BREL_SIM_TRACE");
    unsetenv("BREL_SIM_STATE");
    sim::Panel::reset();
}

void useProfileText(const std::string& text) {
    const std::string profile = gScratch + "/profile.json", memory = gScratch + "/memory.json";
    for (const std::string& file : {profile, memory}) {
        int fd = open(file.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
        if (fd < 0 || write(fd, text.data(), text.size()) != static_cast<ssize_t>(text.size())) {
            report("dumpbrel fuzz: cannot write %s", file.c_str());
            abort();
        }
        close(fd);
    }
    useProfile(Profile::kBuiltIn);
    setenv("BREL_SIM_PANEL", profile.c_str(), 1);
    setenv("BREL_SIM_STATE", memory.c_str(), 1);
    sim::Panel::reset();
}

void runTool(const std::vector<std::string>& words) {
    std::vector<std::string> storage;
    storage.reserve(words.size() + 1);
    storage.push_back("dumpbrel");
    storage.insert(storage.end(), words.begin(), words.end());
    std::vector<char*> argv;
    for (auto& word : storage) argv.push_back(word.data());
    argv.push_back(nullptr);

    int status = android::dumpbrel::dumpbrelMain(static_cast<int>(storage.size()), argv.data());
    std::cout.flush();
    fflush(stdout);
    fflush(stderr);
    if (status != 0) {
        report("dumpbrel fuzz: the run ended with status %d", status);
        abort();
    }
    if (!std::cout.good() || !std::cerr.good()) {
        report("dumpbrel fuzz: a standard stream was left failed (something printed a null text?)");
        abort();
    }
}

void report(const char* format, ...) {
    va_list args;
    va_start(args, format);
    vdprintf(gReportFd, format, args);
    va_end(args);
    dprintf(gReportFd, "\n");
}

}  // namespace dumpbrel_fuzz

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
    dumpbrel_fuzz::setUp();
    for (int i = 1; i < *argc; ++i)
        if (strncmp((*argv)[i], "-close_fd_mask=", 15) == 0) return 0;
    static std::vector<char*> extended;
    static char mask[] = "-close_fd_mask=3";
    extended.assign(*argv, *argv + *argc);
    extended.insert(extended.begin() + 1, mask);
    extended.push_back(nullptr);
    *argc += 1;
    *argv = extended.data();
    return 0;
}
