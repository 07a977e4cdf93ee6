#include "ListCommand.h"

#include <getopt.h>

#include <iostream>
#include <memory>

#include "Report.h"

namespace android {
namespace dumpbrel {

namespace {

// One struct option per row plus the zero entry. Every entry shares `flagTarget`, so
// getopt_long answers 0 for any long option and its row is told by the index alone.
std::unique_ptr<struct option[]> getLongOptions(const std::vector<ListCommand::Option>& options,
                                                int* flagTarget) {
    std::unique_ptr<struct option[]> table(new struct option[options.size() + 1]());
    for (size_t i = 0; i < options.size(); ++i) {
        table[i].name = options[i].longOption.data();
        table[i].has_arg = options[i].hasArg;
        table[i].flag = flagTarget;
        table[i].val = options[i].val;
    }
    return table;
}

// The short specs joined as they stand: whether a letter takes an argument is then decided by
// its first place in the string, whatever row it came from.
std::string getShortOptions(const std::vector<ListCommand::Option>& options) {
    std::string shortOptions;
    for (const auto& row : options) shortOptions += row.shortOption;
    return shortOptions;
}

int firstByte(std::string_view text) {
    return text.empty() ? 0 : static_cast<unsigned char>(text[0]);
}

}  // namespace

const std::string& ListCommand::Option::getHelpMessageForArgument() const {
    static const std::string required = "=<arg>";
    static const std::string optional = "[=<arg>]";
    static const std::string none;
    switch (hasArg) {
        case required_argument:
            return required;
        case optional_argument:
            return optional;
        default:
            return none;
    }
}

void ListCommand::addRow(std::string_view shortOption, std::string_view longOption,
                         int32_t hasArg, Handler handler, std::string_view help) {
    int32_t val = static_cast<int32_t>(mOptions.size());
    mOptions.push_back({shortOption, longOption, hasArg, val, std::move(handler), help, {}});
}

void ListCommand::addHelp() {
    addRow("h", "help", no_argument, [](ListCommand*, const char*) -> Status { return USAGE; },
           {});
}

void ListCommand::reportAbsent() const {
    std::string name = getName();
    std::string_view option = mRunning ? mRunning->longOption : std::string_view();
    fprintf(stderr, "%s --%.*s: service interface not available, not called\n", name.c_str(),
            static_cast<int>(option.size()), option.data());
}

Status ListCommand::main(const Arg& arg) {
    Status status = parseArgs(arg);
    if (status != OK) usage();
    report::step(nullptr, nullptr, status);
    return status;
}

Status ListCommand::parseArgs(const Arg& arg) {
    if (mOptions.empty()) registerAllOptions();
    if (optind == arg.argc) return USAGE;

    int optionIndex = 0;
    int flagTarget = 0;
    std::unique_ptr<struct option[]> longOptions = getLongOptions(mOptions, &flagTarget);
    std::string shortOptions = getShortOptions(mOptions);

    for (;;) {
        int c = getopt_long(arg.argc, arg.argv, shortOptions.c_str(), longOptions.get(),
                            &optionIndex);
        if (c == -1) break;

        const Option* row = nullptr;
        for (const auto& candidate : mOptions) {
            if (c == 0 ? candidate.val == optionIndex : firstByte(candidate.shortOption) == c)
                row = &candidate;
        }
        if (row == nullptr) {
            std::cout << "unknown option: " << arg.argv[optind - 1] << '\n';
            report::step(nullptr, nullptr, USAGE);
            return USAGE;
        }

        mRunning = row;
        const char* argument = optarg;
        Status status = row->handler(this, argument);
        mRunning = nullptr;
        report::step(std::string(row->longOption).c_str(), argument, status);
        if (status != OK) return status;
    }

    if (optind < arg.argc) {
        std::cout << "unknown option: " << arg.argv[optind] << '\n';
        report::step(nullptr, nullptr, USAGE);
        return USAGE;
    }
    return OK;
}

void ListCommand::usage() const {
    std::cout << "Options:\n";
    // Each row is built first and inserted once: an insertion per piece costs more than the text.
    std::string line;
    for (const auto& row : mOptions) {
        line.clear();
        bool hasShort = firstByte(row.shortOption) != 0;
        const std::string& argument = row.getHelpMessageForArgument();
        if (hasShort) line.append("-").append(row.shortOption).append(argument);
        if (hasShort && !row.longOption.empty()) line += ", ";
        if (!row.longOption.empty()) line.append("--").append(row.longOption).append(argument);
        line += ": ";
        if (row.help.empty()) line += '\n';
        // Pieces as std::getline gives them: a final newline adds no empty piece.
        std::string_view help = row.help;
        bool first = true;
        while (!help.empty()) {
            size_t end = help.find('\n');
            std::string_view piece = help.substr(0, end);
            if (!first) line.append(12, ' ');
            line.append(piece).append("\n");
            first = false;
            help = end == std::string_view::npos ? std::string_view() : help.substr(end + 1);
        }
        std::cout << line;
    }
}

std::vector<std::string> ListCommand::getAllLongOptions() const {
    std::vector<std::string> all;
    all.reserve(mOptions.size());
    for (const auto& row : mOptions) all.push_back("--" + std::string(row.longOption));
    return all;
}

}  // namespace dumpbrel
}  // namespace android
