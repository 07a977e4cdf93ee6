// The prompt road of the built binary: under a real pseudo-terminal, and with lines piped in.

#include <poll.h>
#include <pty.h>
#include <sys/wait.h>
#include <termios.h>
#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace {

// dumpbrel's command line, through the emulator when the build has one.
std::vector<std::string> command() {
    std::istringstream emulator(DUMPBREL_EMULATOR);
    std::vector<std::string> words;
    for (std::string w; emulator >> w;) words.push_back(w);
    if (!words.empty()) words.insert(words.end(), {"-0", "dumpbrel"});
    words.push_back(DUMPBREL_BIN);
    return words;
}

[[noreturn]] void execDumpbrel() {
    std::vector<std::string> words = command();
    std::vector<char*> argv;
    for (auto& w : words) argv.push_back(w.data());
    argv.push_back(nullptr);
    setenv("BREL_SIM_PANEL", "/dev/null/none", 1);
    unsetenv("BREL_SIM_TRACE");
    unsetenv("BREL_SIM_ABSENT");
    execvp(argv[0], argv.data());
    _exit(127);
}

// Reads from `fd` until `text` has arrived (or 20 s have passed); returns all read.
std::string readUntil(int fd, const std::string& text) {
    std::string seen;
    auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(20);
    while (seen.find(text) == std::string::npos && std::chrono::steady_clock::now() < deadline) {
        pollfd p{fd, POLLIN, 0};
        if (poll(&p, 1, 200) <= 0) continue;
        char buffer[4096];
        ssize_t n = read(fd, buffer, sizeof buffer);
        if (n <= 0) break;
        seen.append(buffer, n);
    }
    return seen;
}

int waitExit(pid_t pid) {
    int status = 0;
    waitpid(pid, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

const std::string kPrompt = "\033[49;34mdumpbrel > \033[0m";

TEST(PromptTerminal, EditsWithoutEchoRunsACommandAndRestoresTheTerminal) {
    int master = -1, slave = -1;
    ASSERT_EQ(openpty(&master, &slave, nullptr, nullptr, nullptr), 0);
    struct termios before;
    ASSERT_EQ(tcgetattr(slave, &before), 0);
    ASSERT_TRUE(before.c_lflag & ECHO);
    ASSERT_TRUE(before.c_lflag & ICANON);

    pid_t pid = fork();
    if (pid == 0) {
        close(master);
        setsid();
        dup2(slave, 0);
        dup2(slave, 1);
        dup2(slave, 2);
        close(slave);
        execDumpbrel();
    }
    ASSERT_NE(readUntil(master, kPrompt).find(kPrompt), std::string::npos);

    struct termios editing;
    ASSERT_EQ(tcgetattr(slave, &editing), 0);
    EXPECT_FALSE(editing.c_lflag & ECHO);
    EXPECT_FALSE(editing.c_lflag & ICANON);
    EXPECT_TRUE(editing.c_lflag & ISIG);
    EXPECT_EQ(editing.c_iflag, before.c_iflag);
    EXPECT_EQ(editing.c_oflag, before.c_oflag);

    std::string line = "AnionCtrl -s 1\r";
    ASSERT_EQ(write(master, line.data(), line.size()), static_cast<ssize_t>(line.size()));
    std::string out = readUntil(master, "ret:0");
    EXPECT_NE(out.find("setAnionStatus: 1, ret:0"), std::string::npos) << out;
    readUntil(master, kPrompt);

    ASSERT_EQ(write(master, "q\r", 2), 2);
    readUntil(master, "\n");
    EXPECT_EQ(waitExit(pid), 0);

    struct termios after;
    ASSERT_EQ(tcgetattr(slave, &after), 0);
    EXPECT_TRUE(after.c_lflag & ECHO);
    EXPECT_TRUE(after.c_lflag & ICANON);
    EXPECT_EQ(after.c_lflag, before.c_lflag);
    close(master);
    close(slave);
}

// Runs dumpbrel with `input` on a pipe; returns standard output and sets the exit status.
std::string pipeIn(const std::string& input, int& status) {
    int in[2], out[2];
    EXPECT_EQ(pipe(in), 0);
    EXPECT_EQ(pipe(out), 0);
    pid_t pid = fork();
    if (pid == 0) {
        dup2(in[0], 0);
        dup2(out[1], 1);
        for (int fd : {in[0], in[1], out[0], out[1]}) close(fd);
        execDumpbrel();
    }
    close(in[0]);
    close(out[1]);
    EXPECT_EQ(write(in[1], input.data(), input.size()), static_cast<ssize_t>(input.size()));
    close(in[1]);
    std::string text;
    char buffer[4096];
    for (ssize_t n; (n = read(out[0], buffer, sizeof buffer)) > 0;) text.append(buffer, n);
    close(out[0]);
    status = waitExit(pid);
    return text;
}

TEST(PromptPipe, RunsPipedLinesAndEndsAtQ) {
    int status = -1;
    std::string out = pipeIn("AnionCtrl -s 1\nq\nAnionCtrl -s 2\n", status);
    EXPECT_EQ(status, 0);
    EXPECT_NE(out.find("setAnionStatus: 1, ret:0\n"), std::string::npos) << out;
    EXPECT_EQ(out.find("setAnionStatus: 2"), std::string::npos) << out;
}

TEST(PromptPipe, EndOfInputEndsLikeExit) {
    int status = -1;
    std::string out = pipeIn("AnionCtrl -s 1\n", status);
    EXPECT_EQ(status, 0);
    EXPECT_NE(out.find("setAnionStatus: 1, ret:0\n"), std::string::npos) << out;
    EXPECT_EQ(out.substr(out.size() - kPrompt.size() - 1), kPrompt + "\n");
}

TEST(PromptPipe, ALineStoppedInsideAClusterLeavesTheNextLineClean) {
    int status = -1;
    std::string out = pipeIn("AnionCtrl -hs 1\nAnionCtrl -s 2\nexit\n", status);
    EXPECT_EQ(status, 0);
    EXPECT_NE(out.find("Options:\n"), std::string::npos) << out;
    EXPECT_NE(out.find("setAnionStatus: 2, ret:0\n"), std::string::npos) << out;
    EXPECT_EQ(out.find("unknown option"), std::string::npos) << out;
}

TEST(PromptPipe, WordZeroIsTheToolsNameAndBlankLinesShowTheUsage) {
    int status = -1;
    std::string out = pipeIn("NoSuchThing\n   \nq\n", status);
    EXPECT_EQ(status, 0);
    EXPECT_NE(out.find("dumpbrel: unrecognized option `NoSuchThing`\nUsage: dumpbrel <sub_service>\n"),
              std::string::npos)
        << out;
    EXPECT_NE(out.find("dumpbrel >    \033[0m\nUsage: dumpbrel <sub_service>\n"),  // blank line
              std::string::npos)
        << out;
}

}  // namespace
