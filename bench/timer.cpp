// Wall time of a command: runs it N times (output to /dev/null, input from FILE when given, opened
// anew for each run) and prints the median in microseconds. The command's own environment is the
// caller's.
//
//     bench_timer 25 [-i FILE] ./dumpbrel AnionCtrl -s 1

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

extern char** environ;

int main(int argc, char** argv) {
    if (argc < 3) {
        std::fprintf(stderr, "usage: %s runs [-i input] command [arguments...]\n", argv[0]);
        return 2;
    }
    int runs = std::atoi(argv[1]);
    if (runs < 1) runs = 1;

    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    if (argc > 4 && std::string(argv[2]) == "-i") {
        posix_spawn_file_actions_addopen(&actions, 0, argv[3], O_RDONLY, 0);
        argv += 2;
    }
    posix_spawn_file_actions_addopen(&actions, 1, "/dev/null", O_WRONLY, 0);
    posix_spawn_file_actions_addopen(&actions, 2, "/dev/null", O_WRONLY, 0);

    std::vector<double> micros;
    for (int i = 0; i < runs; ++i) {
        auto start = std::chrono::steady_clock::now();
        pid_t pid;
        if (posix_spawn(&pid, argv[2], &actions, nullptr, argv + 2, environ) != 0) {
            std::perror(argv[2]);
            return 1;
        }
        int status;
        waitpid(pid, &status, 0);
        auto end = std::chrono::steady_clock::now();
        micros.push_back(std::chrono::duration<double, std::micro>(end - start).count());
    }
    std::sort(micros.begin(), micros.end());
    size_t n = micros.size();
    double median = n % 2 ? micros[n / 2] : (micros[n / 2 - 1] + micros[n / 2]) / 2;
    std::printf("%.0f\n", median);
    return 0;
}
