#include "DumpBrel.h"

#include <getopt.h>
#include <unistd.h>

#include <cstdio>
#include <iostream>

#include "ListCommand.h"
#include "Report.h"
#include "shell/Prompt.h"

namespace android {
namespace dumpbrel {

void resetOptionScanner() {
    // optind 0 makes the library start over at its next call (glibc and bionic alike); a call
    // on an empty word list does that without looking at any real word.
    static char name[] = "dumpbrel";
    static char* words[] = {name, nullptr};
    optind = 0;
    int savedOpterr = opterr;
    opterr = 0;
    getopt_long(1, words, "", nullptr, nullptr);
    opterr = savedOpterr;
    optind = 1;
}

DumpBrel::DumpBrel() : mBrelManager(report::createManager()) {
    if (mBrelManager == nullptr) std::cout << "\033[31m IBrelManager get error! finish \033[0m \r\n";
    report::step(nullptr, nullptr, OK);
}

DumpBrel::~DumpBrel() {}

sp<IBrelManager> DumpBrel::getBrelManager() {
    if (mBrelManager == nullptr) mBrelManager = report::createManager();
    return mBrelManager;
}

void DumpBrel::registerListCommand(std::unique_ptr<ListCommand> command) {
    command->registerAllOptions();
    mCommands.push_back(std::move(command));
}

std::unordered_map<std::string, std::vector<std::string>> DumpBrel::getModuleCommands() {
    std::unordered_map<std::string, std::vector<std::string>> commands;
    forEachCommand([&commands](const Command* command) {
        commands[command->getName()] = command->getAllLongOptions();
    });
    return commands;
}

void DumpBrel::forEachCommand(const std::function<void(const Command*)>& f) const {
    for (const auto& command : mCommands) f(command.get());
}

void DumpBrel::usage() {
    std::cout << "Usage: dumpbrel <sub_service>\n";
    bool first = true;
    forEachCommand([&first](const Command* command) {
        std::cout << (first ? "sub_service: " : "             ") << command->getName() << '\n';
        first = false;
    });
}

ListCommand* DumpBrel::selectCommand(const std::string& name) const {
    for (const auto& command : mCommands) {
        if (command->getName() == name) return command.get();
    }
    return nullptr;
}

Status DumpBrel::parseArgs(const Arg& arg) {
    resetOptionScanner();
    if (optind >= arg.argc) return USAGE;
    mSelectedCommand = arg.argv[optind];
    if (selectCommand(mSelectedCommand) != nullptr) {
        ++optind;
        return OK;
    }
    if (!mSelectedCommand.empty() && mSelectedCommand[0] == '-') {
        mSelectedCommand.clear();
        return OK;
    }
    std::cout << arg.argv[0] << ": unrecognized option `" << arg.argv[1] << "`\n";
    report::step(nullptr, nullptr, USAGE);
    return USAGE;
}

Status DumpBrel::main(const Arg& arg) {
    Status status = parseArgs(arg);
    ListCommand* command = status == OK ? selectCommand(mSelectedCommand) : nullptr;
    if (command == nullptr) {
        usage();
        status = status == OK ? USAGE : status;
        report::step(nullptr, nullptr, status);
        return status;
    }
    return command->main(arg);
}

namespace {

bool mayRun(uid_t uid) {
    constexpr uid_t kRoot = 0;
    constexpr uid_t kShell = 2000;
    return uid == kRoot || uid == kShell;
}

}  // namespace

int dumpbrelMain(int argc, char** argv) {
    DumpBrel dumpBrel;  // asks for the manager before the user is checked

    uid_t uid = getuid();
    if (!mayRun(uid)) {
        fprintf(stderr, "uid = %u, permission denied\n", static_cast<unsigned>(uid));
        return -1;
    }

    registerModules(dumpBrel);

    if (argc < 2) return report::exitStatus(runPrompt(dumpBrel));
    dumpBrel.main(Arg{argc, argv});
    report::step(nullptr, nullptr, OK);
    return report::exitStatus(0);
}

}  // namespace dumpbrel
}  // namespace android
