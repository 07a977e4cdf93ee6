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
    // An on/off argument: toInt on the whole text, true when the number is not 0. Rows echo the
    // text as typed, not the number.
    bool toFlag(bool& flag) const;

    // The whole text split at every comma, by std::getline until it fails: fields in the middle
    // may be empty, a comma at the very end adds no empty field, and an empty or missing text
    // gives no field at all.
    std::vector<std::string> commaList() const;

    // One value read with sscanf ("%d" or "%f"): leading white space and a sign are taken, text
    // behind the number is ignored. When sscanf does not read exactly one value (no number,
    // empty or missing text) "Invalid argument format. Use: one arg" goes to standard error and
    // the result is false; the row then returns USAGE without calling.
    bool scanOne(int& out) const;
    bool scanOne(float& out) const;

    // One line on standard error: "<sub-service> --<option>: <problem>".
    void refuse(std::string_view problem) const;
    // The same, with the refused text quoted after the problem.
    void refuse(std::string_view problem, std::string_view refused) const;

private:
    const ListCommand& mCommand;
};

}  // namespace dumpbrel
}  // namespace android
