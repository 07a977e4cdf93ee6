#pragma once

// What typing a row's letters does, by the rules of the short forms: a letter listed by several
// rows runs the last of them, takes an argument when a colon follows its first place, and letters
// of several characters are read one character at a time. Checked against a run in which every
// row reached names itself.

#include <string>
#include <vector>

#include "Runs.h"

namespace reference {

class Letters {
public:
    Letters(Runs& runs, const Module& module) : mRuns(runs), mModule(module) {}

    // The row's letters as the option list shows them, "-x", with "1" after them where the row
    // takes an argument.
    static Words typed(const Row& row);
    // What typing them does where that is more than running this row as its long form runs it:
    // one sentence; empty otherwise.
    std::string sentence(const Row& row, bool takesArgument);
    // The letters that several rows list, a line each: which runs, and whether it takes an
    // argument; empty where there are none.
    Words clashes() const;
    // Whether the row's letter carries an argument to it where its long form takes none.
    bool carriesArgument(const Row& row) const;

private:
    struct Step {
        const Row* row;
        bool argument;
        std::string value;
    };

    Runs& mRuns;
    const Module& mModule;

    std::string colonsAfter(char letter) const;
    const Row* rowOfLetter(char letter) const;
    std::vector<Step> steps(const Words& words) const;
};

}  // namespace reference
