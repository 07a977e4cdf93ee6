#pragma once

// What a row makes of its argument, learnt by running it: how many fields, apart by what, how each
// is read, which values are refused, what each is named (the parameter it reaches, from the table
// of the service's shape, or as the row names it), and what each word a row names does.

#include <set>
#include <string>
#include <vector>

#include "Runs.h"

namespace reference {

// How a row is given an argument: `--name=TEXT`, or `-l TEXT` where only its letter carries one.
struct Form {
    std::string lead;
    bool attached = true;
    Words words(const std::string& value) const;
};

struct Field {
    enum class Kind { Number, Hex, Real, Text, Words };
    bool read = false;
    std::string name;          // "module": the parameter it reaches, or as the row names it;
                               // "rect.rect_p1.point_x": a member of a record
    Kind kind = Kind::Number;
    std::string noNumber;      // where text that is no number is not read as 0: what happens
    std::string accepts;       // where some numbers are refused: the ones taken ("0 to 24")
    Words words;               // the words the row names for it: "on", "off"
    bool example = false;      // the words are examples of a value, not all it takes
    std::string told;          // what the words do: "`vga` 4, `hdmi1` 5 in `setChannel(...)`"
    Words values;              // numbers that become other values, each "`1` "3840x2160p60""
};

struct Argument {
    Form form;
    bool any = false;    // some argument was taken
    bool whole = false;  // passed on as typed
    char separator = 0;  // 0: one value
    std::vector<Field> fields;
    Words base;           // a value for each field that the row takes
    std::string example;  // an argument the row takes, the fields told apart
    bool emptyRefused = false;
};

// The runs of one row, and every operation any of them called.
class Analysis {
public:
    Analysis(Runs& runs, const Module& module, const Row& row)
        : mRuns(runs), mModule(module), mRow(row) {}

    Argument argument(const Form& form);
    const Result& run(const Form& form, const std::string& value);
    // The operations some run of this row called, for any argument tried.
    const std::set<std::string>& operations() const { return mOperations; }

private:
    Runs& mRuns;
    const Module& mModule;
    const Row& mRow;
    std::set<std::string> mOperations;

    bool refused(const Result& result) const { return Runs::refused(mModule, result); }
    std::string outcome(const Result& result) const { return Runs::outcome(mModule, result); }
    std::string joined(const Words& values, char separator) const;
    std::vector<bool> fieldsRead(const Form& form, const Words& base, char separator);
    Field field(const Argument& arg, size_t k);
    std::string accepted(const Argument& arg, size_t k);
    std::string nameOf(const Argument& arg, size_t k, const std::string& other);
    Words valuesOf(const Argument& arg, size_t k);
    void declared(Argument& arg);
    std::string tell(const Argument& arg, size_t k);
    std::string exampleOf(const Argument& arg);
};

}  // namespace reference
