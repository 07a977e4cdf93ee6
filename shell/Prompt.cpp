#include "Prompt.h"

#include <cstdio>

#include "Readline.h"
#include "framework/DumpBrel.h"
#include "framework/Report.h"

namespace android {
namespace dumpbrel {

namespace {

// One typed line dispatched: the tool's own name stands in for word 0.
void dispatch(DumpBrel& dumpBrel, const std::string& line) {
    std::string text = "dumpbrel " + line;
    std::vector<char*> argv = Readline::tokenize_line(text);
    dumpBrel.main(Arg{Readline::countWords(text), argv.data()});
}

// Lines piped in for a script (BREL_OUTPUT=json): no prompt, no echo, no editing; each line's
// steps carry its number.
int runBatch(DumpBrel& dumpBrel) {
    std::string line;
    for (long number = 1;; ++number) {
        line.clear();
        int c;
        while ((c = getchar()) != EOF && c != '\n') line += static_cast<char>(c);
        if ((c == EOF && line.empty()) || line == "exit" || line == "q") break;
        if (line.empty()) continue;
        report::line(number);
        dispatch(dumpBrel, line);
        if (c == EOF) break;
    }
    return 0;
}

}  // namespace

int runPrompt(DumpBrel& dumpBrel) {
    if (report::batch()) return runBatch(dumpBrel);
    Readline readline(dumpBrel.getModuleCommands());
    for (;;) {
        std::string line = readline.readline("dumpbrel > ");
        if (readline.end_of_input() || line == "exit" || line == "q") break;
        if (line.empty()) continue;
        dispatch(dumpBrel, line);
    }
    return 0;
}

}  // namespace dumpbrel
}  // namespace android
