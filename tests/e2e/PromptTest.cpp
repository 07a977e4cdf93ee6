// The prompt road of the built binary: under a real pseudo-terminal, and with lines piped in.

#include <poll.h>
#include <pty.h>
#include <sys/wait.h>
#include <termios.h>
#include <unistd.h>

#include <chrono>
#include <string>

#include <gtest/gtest.h>

#include "Fixtures.h"

namespace dumpbrel_test {
namespace {

const std::string kPrompt = "\033[49;34mdumpbrel > \033[0m";

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

TEST(PromptTerminal, EditsWithoutEchoRunsACommandAndRestoresTheTerminal) {
    int master = -1, slave = -1;
    ASSERT_EQ(openpty(&master, &slave, nullptr, nullptr, nullptr), 0);
    struct termios before, editing, after;
    ASSERT_EQ(tcgetattr(slave, &before), 0);
    ASSERT_TRUE((before.c_lflag & ECHO) && (before.c_lflag & ICANON));

    pid_t pid = fork();
    if (pid == 0) {
        close(master);
        setsid();
        for (int fd : {0, 1, 2}) dup2(slave, fd);
        close(slave);
        execBinary({});
    }
    ASSERT_NE(readUntil(master, kPrompt).find(kPrompt), std::string::npos);
    ASSERT_EQ(tcgetattr(slave, &editing), 0);
    EXPECT_FALSE(editing.c_lflag & (ECHO | ICANON));
    EXPECT_TRUE(editing.c_lflag & ISIG);
    EXPECT_EQ(editing.c_iflag, before.c_iflag);
    EXPECT_EQ(editing.c_oflag, before.c_oflag);

    std::string line = "AnionCtrl -s 1\r";
    ASSERT_EQ(write(master, line.data(), line.size()), static_cast<ssize_t>(line.size()));
    std::string out = readUntil(master, "ret:0\r\n" + kPrompt);
    EXPECT_NE(out.find("setAnionStatus: 1, ret:0"), std::string::npos) << out;

    ASSERT_EQ(write(master, "q\r", 2), 2);
    readUntil(master, "\n");
    int status = 0;
    waitpid(pid, &status, 0);
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << status;
    ASSERT_EQ(tcgetattr(slave, &after), 0);
    EXPECT_EQ(after.c_lflag, before.c_lflag);
    close(master);
    close(slave);
}

// Lines piped to the prompt: what it printed, checked piece by piece, and its exit status 0.
TEST(PromptPipe, RunsLinesUntilQExitOrTheEnd) {
    struct {
        const char* input;
        std::vector<std::string> present, absent;
    } cases[] = {
        {"AnionCtrl -s 1\nq\nAnionCtrl -s 2\n", {"setAnionStatus: 1, ret:0\n"}, {"ret:2"}},
        // The end of input ends like exit, the last prompt met by a newline.
        {"AnionCtrl -s 1\n", {"setAnionStatus: 1, ret:0\n" + kPrompt + "\n"}, {}},
        // A line stopped inside a cluster leaves nothing behind for the next one.
        {"AnionCtrl -hs 1\nAnionCtrl -s 2\nexit\n", {"Options:\n", "setAnionStatus: 2, ret:0\n"},
         {"unknown option"}},
        // Word 0 is the tool's name; a blank line shows the usage.
        {"NoSuchThing\n   \nq\n",
         {"dumpbrel: unrecognized option `NoSuchThing`\nUsage: dumpbrel <sub_service>\n",
          "dumpbrel >    \033[0m\nUsage: dumpbrel <sub_service>\n"},
         {}},
    };
    for (const auto& c : cases) {
        Start start;
        start.input = c.input;
        Result run = runBinary(start);
        EXPECT_EQ(run.status, 0) << c.input;
        for (const auto& text : c.present)
            EXPECT_NE(run.out.find(text), std::string::npos) << c.input << "\n" << run.out;
        for (const auto& text : c.absent)
            EXPECT_EQ(run.out.find(text), std::string::npos) << c.input << "\n" << run.out;
    }
}

}  // namespace
}  // namespace dumpbrel_test
