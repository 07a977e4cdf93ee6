// Writes the fuzzers' seed corpus from the registry, so that it follows the modules:
//   <dir>/arguments:  every sub-service name alone and with -h; every long option with "=" and
//                     with a separate argument; every short spec, each with one good value
//   <dir>/keystrokes: typed commands, the escape sequences of the line editor, Tab, Backspace
//                     and Delete in runs, history walks, completion of every name and option
//   <dir>/profiles:   the project's own profiles: the built-in one (sim/panel.json), and every
//                     profile and memory of the hand-written cases (tests/e2e/cases.json)
//
//     fuzz_seeds <dir>

#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include <json/value.h>

#include "Registry.h"
#include "adaptor/Json.h"
#include "tests/RunAs.h"

namespace fs = std::filesystem;

namespace {

const std::string kGoodValue = "1";

class Writer {
public:
    explicit Writer(fs::path dir) : mDir(std::move(dir)) { fs::create_directories(mDir); }

    void add(const std::string& bytes) {
        char name[32];
        snprintf(name, sizeof name, "seed-%05zu", mCount++);
        std::ofstream(mDir / name, std::ios::binary) << bytes;
    }
    // Words joined by NUL bytes, as the arguments target splits them.
    void addWords(const std::vector<std::string>& words) {
        std::string bytes;
        for (size_t i = 0; i < words.size(); ++i) {
            if (i) bytes += '\0';
            bytes += words[i];
        }
        add(bytes);
    }
    size_t count() const { return mCount; }

private:
    fs::path mDir;
    size_t mCount = 0;
};

// Letters of a short spec, colons left out: "d:::::" gives "d", "reset" gives "reset".
std::string letters(const std::string& spec) {
    std::string out;
    for (char c : spec)
        if (c != ':') out += c;
    return out;
}

void writeArguments(Writer& out, const std::vector<dumpbrel_fuzz::Module>& modules) {
    out.addWords({});
    out.addWords({"-h"});
    out.addWords({"NoSuchService", "-h"});
    for (const auto& module : modules) {
        out.addWords({module.name});
        out.addWords({module.name, "-h"});
        std::vector<std::string> all{module.name};
        for (const auto& row : module.rows) {
            if (!row.longName.empty()) {
                out.addWords({module.name, "--" + row.longName + "=" + kGoodValue});
                out.addWords({module.name, "--" + row.longName, kGoodValue});
                all.push_back("--" + row.longName);
                if (row.hasArg) all.push_back(kGoodValue);
            }
            std::string shortLetters = letters(row.shortSpec);
            if (shortLetters.empty()) continue;
            bool takes = row.shortSpec.find(':') != std::string::npos;
            if (takes)
                out.addWords({module.name, "-" + shortLetters.substr(0, 1), kGoodValue});
            else
                out.addWords({module.name, "-" + shortLetters.substr(0, 1)});
            if (shortLetters.size() > 1) out.addWords({module.name, "-" + shortLetters});
        }
        out.addWords(all);  // every row of the table in one line
    }
}

void writeKeystrokes(Writer& out, const std::vector<dumpbrel_fuzz::Module>& modules) {
    const std::string esc = "\x1b";
    const std::string up = esc + "[A", down = esc + "[B", right = esc + "[C", left = esc + "[D";
    const std::string del = esc + "[3~", home = esc + "OH";
    // The editor's keys on their own and in runs.
    out.add("\t");
    out.add("\t\t");
    out.add("\t\t\t\t\t");
    out.add("exit\n");
    out.add("q\n");
    out.add("abc\x7f\x7f\x08\x08\x7f\n");
    out.add("abc" + left + left + "X" + right + right + right + "Y\n");
    out.add("a\nb\nc\n" + up + up + up + up + down + down + down + down + "\n");
    out.add("xyz" + up + down + "\n");
    out.add("abc" + del + del + left + del + "\n");
    out.add("abc" + home + esc + "Ox" + "\n");
    out.add(esc);
    out.add(esc + "[");
    out.add("dumpbrel" + esc + "[1;5C" + "\n");
    out.add("   \t\t\n");
    out.add(" \t \x7f\t\x7f\t\n");
    out.add(left + right + up + down + "\t" + "\x7f" + "\t\n");
    out.add(std::string("\xc3\xa9\xff\x80 \t\t\n", 9));
    out.add("\"a b\" 'c'\n");
    out.add("-h\n");
    out.add("quit\nexit\n");
    for (const auto& module : modules) {
        const std::string& name = module.name;
        out.add(name.substr(0, 2) + "\t\t\n");
        out.add(name + "\t\t" + " -\t\t\t\n");
        out.add(name + " -h\n" + up + "\n" + up + up + down + "\n");
        std::string line = name;
        for (const auto& row : module.rows) {
            if (row.longName.size() < 2) continue;
            out.add(name + " --" + row.longName.substr(0, 2) + "\t\t" + (row.hasArg ? " 1" : "") +
                    "\n");
            line += " --" + row.longName + (row.hasArg ? " 1" : "");
        }
        out.add(line + "\n" + up + left + left + "\x7f" + "\t\n");
    }
}

std::string fileText(const fs::path& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

void writeProfiles(Writer& out, const fs::path& source) {
    out.add(fileText(source / "sim/panel.json"));
    Json::Value cases;
    std::string error;
    if (!adaptor::parse(fileText(source / "tests/e2e/cases.json"), cases, error)) return;
    for (const Json::Value& row : cases)
        for (const Json::Value* at = &row; at->isObject(); at = &(*at)["next"]) {
            const Json::Value& panel = (*at)["panel"];
            if (panel.isString()) out.add(panel.asString());
            if (panel.isObject()) out.add(adaptor::profileText(panel));
            if ((*at)["state"].isString()) out.add((*at)["state"].asString());
        }
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        fprintf(stderr, "usage: %s <corpus-dir>\n", argv[0]);
        return 2;
    }
    dumpbrel_test::clearBrelEnvironment();
    std::vector<dumpbrel_fuzz::Module> modules = dumpbrel_fuzz::walkRegistry();

    fs::path dir = argv[1];
    fs::remove_all(dir / "arguments");
    fs::remove_all(dir / "keystrokes");
    fs::remove_all(dir / "profiles");
    Writer arguments(dir / "arguments"), keystrokes(dir / "keystrokes"), profiles(dir / "profiles");
    writeArguments(arguments, modules);
    writeKeystrokes(keystrokes, modules);
    writeProfiles(profiles, DUMPBREL_SOURCE_DIR);
    printf("seeds: %zu sub-services, %zu argument seeds, %zu keystroke seeds, %zu profiles\n",
           modules.size(), arguments.count(), keystrokes.count(), profiles.count());
    return 0;
}
