#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace android {
namespace dumpbrel {

class ListCommand;

// What a row's body gets: the option's argument text and the argument shapes that the modules
// share. Every refusal is one line on standard error naming the sub-service and the option.
class Input {
public:
    Input(const ListCommand& command, const char* text) : text(text), mCommand(command) {}

    // The argument as getopt_long gave it; null when there is none.
    const char* const text;
    bool missing() const { return text == nullptr; }

    // Comma fields: `count` reads of std::getline on ','. A field that is not there is empty;
    // text behind the last field read is ignored. A missing argument gives empty fields.
    // A row that splits at another character names it as `delimiter`.
    std::vector<std::string> fields(size_t count, char delimiter = ',') const;

    // std::stoi / std::stoul semantics (leading blanks, a sign, digits, anything after them
    // ignored). Text they cannot convert is refused with one line and gives false.
    bool toInt(const std::string& s, int& out, int base = 10) const;
    bool toULong(const std::string& s, unsigned long& out, int base = 10) const;
    // The same on the whole argument; a missing argument gives false with no line.
    bool toInt(int& out, int base = 10) const;

    // One line on standard error: "<sub-service> --<option>: <problem>".
    void refuse(std::string_view problem) const;
    // The same, with the refused text quoted after the problem.
    void refuse(std::string_view problem, std::string_view refused) const;

private:
    const ListCommand& mCommand;
};

// "true" / "false", the words the tables print for a bool.
inline const char* trueFalse(bool value) { return value ? "true" : "false"; }

}  // namespace dumpbrel
}  // namespace android
