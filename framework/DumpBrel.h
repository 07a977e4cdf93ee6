#pragma once

#include <functional>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include <utils/StrongPointer.h>

#include "Command.h"
#include "service/IBrelManager.h"

namespace android {
namespace dumpbrel {

class ListCommand;

// The dispatcher: owns every module and the handle of the service's manager.
class DumpBrel {
public:
    DumpBrel();
    virtual ~DumpBrel();

    // The manager; asks the library once more while it has none. May be null.
    sp<IBrelManager> getBrelManager();

    // Registers the module's rows and takes ownership of it.
    void registerListCommand(std::unique_ptr<ListCommand> command);

    // Sub-service name to its long options ("--" and the name), the prompt's vocabulary.
    std::unordered_map<std::string, std::vector<std::string>> getModuleCommands();

    void forEachCommand(const std::function<void(const Command*)>& f) const;
    void usage();
    ListCommand* selectCommand(const std::string& name) const;
    Status parseArgs(const Arg& arg);
    Status main(const Arg& arg);

private:
    std::vector<std::unique_ptr<ListCommand>> mCommands;
    std::string mSelectedCommand;
    sp<IBrelManager> mBrelManager;
};

// Builds every sub-service, in the order of the listing, and registers it with `dumpBrel`
// (modules/Modules.cpp). The entry below does this on every run; tools that walk the registry
// (the argument sweep, the fuzzers' seed corpus) call it on a DumpBrel of their own.
void registerModules(DumpBrel& dumpBrel);

// The whole run of the tool for one command line: the one-shot road with words, the prompt
// without. Returns the process's exit status; main() is nothing more.
int dumpbrelMain(int argc, char** argv);

// Clears every trace of an earlier scan in getopt_long, the private cursor inside a cluster of
// short options included, and leaves optind at 1.
void resetOptionScanner();

}  // namespace dumpbrel
}  // namespace android
