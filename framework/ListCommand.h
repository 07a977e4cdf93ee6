#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include <utils/StrongPointer.h>

#include "Command.h"
#include "DumpBrel.h"
#include "Input.h"

namespace android {
namespace dumpbrel {

// A sub-service made of a table of options: every option is one row, parsed with getopt_long.
class ListCommand : public Command {
public:
    using Handler = std::function<Status(ListCommand*, const char*)>;

    // One row of the table. The texts view string literals, so they are zero-terminated and
    // live as long as the program.
    struct Option {
        std::string_view shortOption;  // short spec as registered, colons and all; may be empty
        std::string_view longOption;   // long name without dashes
        int32_t hasArg;                // argument rule of the long form, as getopt_long has it
        int32_t val;                   // index of the row in its table
        Handler handler;               // called with the command and the argument (or null)
        std::string_view help;         // may hold newlines
        // What the argument is made of, where a run cannot tell it (takes()); empty otherwise.
        std::string_view argument;

        const std::string& getHelpMessageForArgument() const;
    };

    // Argument rules of a row's long form (getopt_long's no_argument and required_argument).
    static constexpr int32_t kNone = 0;
    static constexpr int32_t kRequired = 1;

    explicit ListCommand(DumpBrel& parent) : Command(parent) {}

    Status main(const Arg& arg) override;
    void usage() const override;
    std::vector<std::string> getAllLongOptions() const override;

    // Appends the module's rows to mOptions.
    virtual Status registerAllOptions() = 0;

    Status parseArgs(const Arg& arg);

    // The row whose handler runs now (null between handlers).
    const Option* runningOption() const { return mRunning; }

    // The table as registered, for tools that walk every row.
    const std::vector<Option>& getOptions() const { return mOptions; }

    // Writes the line for a row that was reached while its interface is missing.
    void reportAbsent() const;

protected:
    // Takes one interface from the service's manager through `accessor`; writes `failLine` to
    // standard error when the manager or the interface is missing.
    template <typename I>
    sp<I> connect(I* (IBrelManager::*accessor)(), const char* failLine);

    // The `h` / `help` row that stops parsing so that the option list is printed.
    void addHelp();

    // A row whose handler needs `iface`. While `iface` is null the row reports that on standard
    // error and lets parsing go on; otherwise `body(*iface, input)` runs and its status counts.
    template <typename I, typename Body>
    void add(std::string_view shortOption, std::string_view longOption, int32_t hasArg,
             const sp<I>& iface, Body body, std::string_view help = {});

    // Names what the last row's argument is made of, for its reference (docs/options.md); the
    // option list does not show it. Fields apart as the row splits them, each `<name>`, or the
    // words it takes, `on|off`, or both, `<channelID>=vga|hdmi1`. A field left out is named by
    // the reference from the parameter it reaches.
    void takes(std::string_view argument) { mOptions.back().argument = argument; }

    // A row with a handler of its own, numbered by its place in the table.
    void addRow(std::string_view shortOption, std::string_view longOption, int32_t hasArg,
                Handler handler, std::string_view help = {});

    std::vector<Option> mOptions;

private:
    const Option* mRunning = nullptr;
};

template <typename I>
sp<I> ListCommand::connect(I* (IBrelManager::*accessor)(), const char* failLine) {
    sp<I> iface;
    sp<IBrelManager> manager = mParent->getBrelManager();
    if (manager != nullptr) iface = (manager.get()->*accessor)();
    if (iface == nullptr) fputs(failLine, stderr);
    return iface;
}

template <typename I, typename Body>
void ListCommand::add(std::string_view shortOption, std::string_view longOption, int32_t hasArg,
                      const sp<I>& iface, Body body, std::string_view help) {
    // Only the interface's address is captured, so std::function keeps the handler inline
    // (no allocation) when the body captures nothing; the row's name comes from runningOption().
    const sp<I>* target = &iface;
    addRow(shortOption, longOption, hasArg,
           [target, body](ListCommand* self, const char* text) -> Status {
               if (*target == nullptr) {
                   self->reportAbsent();
                   return OK;
               }
               return body(**target, Input(*self, text));
           },
           help);
}

}  // namespace dumpbrel
}  // namespace android
