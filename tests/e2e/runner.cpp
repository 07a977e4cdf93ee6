// Runs every case of tests/e2e/cases/*.json against the built dumpbrel and the simulated panel.
//
// A file holds one sub-service's cases:
//   "module":  the sub-service, put in front of every case's "args" (absent: nothing in front)
//   "options": the module's option list, lines; "@options" in "out" stands for them
//   "cases":   rows of
//     "name"    what the case shows
//     "args"    the words after the sub-service
//     "panel"   the profile (BREL_SIM_PANEL); absent: the built-in profile
//     "env"     further environment, e.g. {"BREL_SIM_ABSENT": "all"}
//     "stdin"   bytes fed to standard input (absent: /dev/null)
//     "uid"     run as this user id (needs root; skipped otherwise)
//     "out"     standard output: lines (each gets its newline), or one string of exact bytes
//     "err"     standard error, the same way
//     "status"  exit status (absent: 0)
//     "calls"   the trace, lines
// An absent "out", "err" or "calls" means nothing at all; null means not checked.
// A word of "args" or a line of "out", "err" or "calls" may also be written in pieces, as an
// array of strings, byte values (0-255, for bytes that JSON text cannot hold) and
// {"repeat": <piece>, "times": n} (for long texts).

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace fs = std::filesystem;
using Json = nlohmann::json;

namespace {

struct Case {
    std::string id;  // file stem and index, for the test's name
    std::string file;
    Json options;
    std::string module;
    Json row;
};

std::vector<Case> loadCases() {
    std::vector<Case> cases;
    std::vector<fs::path> files;
    for (const auto& entry : fs::directory_iterator(E2E_CASES_DIR))
        if (entry.path().extension() == ".json") files.push_back(entry.path());
    std::sort(files.begin(), files.end());
    for (const auto& path : files) {
        std::ifstream in(path);
        Json doc = Json::parse(in);  // a broken case file fails the whole run, loudly
        std::string module = doc.value("module", "");
        Json options = doc.value("options", Json::array());
        int index = 0;
        for (const auto& row : doc.at("cases")) {
            std::string id = path.stem().string() + "_" + std::to_string(index++);
            for (char& c : id)
                if (!isalnum(static_cast<unsigned char>(c))) c = '_';
            cases.push_back({id, path.filename().string(), options, module, row});
        }
    }
    return cases;
}

// A text given as a string or in pieces (see the top).
std::string text(const Json& value) {
    if (value.is_string()) return value.get<std::string>();
    if (value.is_number_unsigned() && value.get<unsigned>() < 256)
        return std::string(1, static_cast<char>(value.get<unsigned>()));
    if (value.is_object()) {
        std::string piece = text(value.at("repeat")), whole;
        for (int i = value.at("times").get<int>(); i > 0; --i) whole += piece;
        return whole;
    }
    if (!value.is_array()) throw std::invalid_argument("not a text: " + value.dump());
    std::string whole;
    for (const auto& piece : value) whole += text(piece);
    return whole;
}

std::string expected(const Json& spec, const Json& options) {
    if (spec.is_string()) return spec.get<std::string>();
    std::string text;
    for (const auto& line : spec) {
        if (line == "@options") {
            for (const auto& option : options) text += option.get<std::string>() + "\n";
        } else {
            text += ::text(line) + "\n";
        }
    }
    return text;
}

std::string readFile(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

struct Result {
    std::string out, err;
    int status = -1;
    bool timedOut = false;
};

std::vector<std::string> splitWords(const std::string& text) {
    std::istringstream in(text);
    std::vector<std::string> words;
    for (std::string w; in >> w;) words.push_back(w);
    return words;
}

Result run(const std::vector<std::string>& args, const std::map<std::string, std::string>& env,
           const std::string* input, int uid) {
    // Word 0 is always "dumpbrel"; under an emulator it is passed through qemu's -0.
    std::vector<std::string> words = splitWords(DUMPBREL_EMULATOR);
    if (words.empty())
        words = {"dumpbrel"};
    else
        words.insert(words.end(), {"-0", "dumpbrel", DUMPBREL_BIN});
    std::string path = words.size() == 1 ? DUMPBREL_BIN : words[0];
    words.insert(words.end(), args.begin(), args.end());
    std::vector<char*> argv;
    for (auto& w : words) argv.push_back(w.data());
    argv.push_back(nullptr);

    std::vector<std::string> envText;
    for (const auto& [k, v] : env) envText.push_back(k + "=" + v);
    std::vector<char*> envp;
    for (auto& e : envText) envp.push_back(e.data());
    envp.push_back(nullptr);

    int in[2], out[2], err[2];
    if (pipe(in) || pipe(out) || pipe(err)) abort();
    pid_t pid = fork();
    if (pid == 0) {
        dup2(in[0], 0);
        dup2(out[1], 1);
        dup2(err[1], 2);
        for (int fd : {in[0], in[1], out[0], out[1], err[0], err[1]}) close(fd);
        if (!input) {
            int null = open("/dev/null", O_RDONLY);
            dup2(null, 0);
            close(null);
        }
        if (uid >= 0 && (setgid(uid) != 0 || setuid(uid) != 0)) _exit(126);
        execvpe(path.c_str(), argv.data(), envp.data());
        _exit(127);
    }
    close(in[0]);
    close(out[1]);
    close(err[1]);
    signal(SIGPIPE, SIG_IGN);

    Result result;
    std::string pending = input ? *input : std::string();
    size_t sent = 0;
    if (pending.empty()) close(in[1]);
    int inFd = pending.empty() ? -1 : in[1];
    int open_ = 2;
    auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(20);
    while (open_ > 0) {
        pollfd fds[3] = {{out[0], POLLIN, 0}, {err[0], POLLIN, 0}, {inFd, POLLOUT, 0}};
        int left = static_cast<int>(std::chrono::duration_cast<std::chrono::milliseconds>(
                                        deadline - std::chrono::steady_clock::now())
                                        .count());
        if (left <= 0 || poll(fds, 3, left) <= 0) {
            result.timedOut = true;
            kill(pid, SIGKILL);
            break;
        }
        for (int i = 0; i < 2; ++i) {
            if (fds[i].fd < 0 || !(fds[i].revents & (POLLIN | POLLHUP))) continue;
            char buffer[65536];
            ssize_t n = read(fds[i].fd, buffer, sizeof buffer);
            if (n <= 0) {
                close(fds[i].fd);
                (i == 0 ? out[0] : err[0]) = -1;
                --open_;
            } else {
                (i == 0 ? result.out : result.err).append(buffer, n);
            }
        }
        if (inFd >= 0 && (fds[2].revents & (POLLOUT | POLLERR | POLLHUP))) {
            ssize_t n = write(inFd, pending.data() + sent, pending.size() - sent);
            if (n > 0) sent += n;
            if (n <= 0 || sent == pending.size()) {
                close(inFd);
                inFd = -1;
            }
        }
    }
    if (inFd >= 0) close(inFd);
    for (int fd : {out[0], err[0]})
        if (fd >= 0) close(fd);
    int wstatus = 0;
    waitpid(pid, &wstatus, 0);
    result.status = WIFEXITED(wstatus) ? WEXITSTATUS(wstatus) : 128 + WTERMSIG(wstatus);
    return result;
}

void PrintTo(const Case& c, std::ostream* os) {
    *os << c.file << ": " << c.row.value("name", std::string("(unnamed)"));
}

class E2E : public testing::TestWithParam<Case> {};

TEST_P(E2E, Case) {
    const Case& c = GetParam();
    const Json& row = c.row;
    SCOPED_TRACE(c.file + ": " + row.value("name", std::string("(unnamed)")));

    int uid = row.value("uid", -1);
    if (uid >= 0 && geteuid() != 0) GTEST_SKIP() << "needs root to change the user id";

    fs::path dir = fs::temp_directory_path() /
                   ("dumpbrel-e2e-" + std::to_string(getpid()) + "-" + c.id);
    fs::remove_all(dir);
    fs::create_directories(dir);
    fs::permissions(dir, fs::perms::all);

    std::map<std::string, std::string> env;
    for (char** e = environ; *e; ++e) {
        std::string entry = *e;
        size_t eq = entry.find('=');
        if (eq != std::string::npos) env[entry.substr(0, eq)] = entry.substr(eq + 1);
    }
    for (const char* name : {"BREL_SIM_PANEL", "BREL_SIM_ABSENT", "BREL_SIM_TRACE"}) env.erase(name);
    std::string trace = (dir / "trace").string();
    env["BREL_SIM_TRACE"] = trace;
    env["BREL_PROPERTY_DIR"] = (dir / "properties").string();
    if (row.contains("panel")) {
        std::string panel = (dir / "panel.json").string();
        std::ofstream(panel) << (row["panel"].is_string() ? row["panel"].get<std::string>()
                                                          : row["panel"].dump());
        env["BREL_SIM_PANEL"] = panel;
    }
    Json extra = row.value("env", Json::object());
    for (const auto& [k, v] : extra.items()) env[k] = v.get<std::string>();

    std::vector<std::string> args;
    if (!c.module.empty()) args.push_back(c.module);
    Json words = row.value("args", Json::array());
    for (const auto& a : words) args.push_back(text(a));
    std::string input = row.value("stdin", std::string());
    Result r = run(args, env, row.contains("stdin") ? &input : nullptr, uid);

    ASSERT_FALSE(r.timedOut) << "no end within the time limit";
    auto check = [&](const char* key, const std::string& actual) {
        if (row.contains(key) && row[key].is_null()) return;
        EXPECT_EQ(actual, expected(row.value(key, Json::array()), c.options)) << "(" << key << ")";
    };
    check("out", r.out);
    check("err", r.err);
    EXPECT_EQ(r.status, row.value("status", 0));
    check("calls", readFile(trace));
    fs::remove_all(dir);
}

INSTANTIATE_TEST_SUITE_P(Cases, E2E, testing::ValuesIn(loadCases()),
                         [](const testing::TestParamInfo<Case>& info) { return info.param.id; });

}  // namespace
