#include "Prompt.h"

#include "Readline.h"
#include "framework/DumpBrel.h"

namespace android {
namespace dumpbrel {

int runPrompt(DumpBrel& dumpBrel) {
    Readline readline(dumpBrel.getModuleCommands());
    for (;;) {
        std::string line = readline.readline("dumpbrel > ");
        if (readline.end_of_input() || line == "exit" || line == "q") break;
        if (line.empty()) continue;
        // The tool's own name stands in for word 0.
        std::string text = "dumpbrel " + line;
        std::vector<char*> argv = Readline::tokenize_line(text);
        dumpBrel.main(Arg{Readline::countWords(text), argv.data()});
    }
    return 0;
}

}  // namespace dumpbrel
}  // namespace android
