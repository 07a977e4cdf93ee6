#pragma once

// The entry of one option in the reference, in the shape of a manual page: a first line with its
// letters and its long form with the named fields of its argument, an example with its output and
// calls, then as few lines as say the rest: how the fields are read where not as the rules say,
// the words it takes, whether it changes the panel and what the memory keeps, what abbreviations
// in its operations stand for (the first time in its sub-service), and what typing its letters runs where that is not this option.

#include <set>
#include <string>

#include "Runs.h"

namespace reference {

struct Entry {
    std::string text;
    std::set<std::string> operations;  // "IAudioCtrl.setAudioGain": every one some run called
};

// `told`: the abbreviations that earlier entries of the sub-service spelled out; this entry's
// are added.
Entry entry(Runs& runs, const Module& module, const Row& row, std::set<std::string>& told);

}  // namespace reference
