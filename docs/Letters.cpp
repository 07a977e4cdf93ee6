#include "Letters.h"

#include <cstdio>
#include <cstdlib>
#include <map>

#include "Text.h"

namespace reference {

// What follows the letter's first place in the short forms: ":" an argument, "::" one that must
// be attached to the letter, "" none.
std::string Letters::colonsAfter(char letter) const {
    std::string joined;
    for (const Row& row : mModule.rows) joined += row.shortSpec;
    size_t first = joined.find(letter);
    size_t colons = first == std::string::npos ? 0 : joined.find_first_not_of(':', first + 1);
    colons = (colons == std::string::npos ? joined.size() : colons) - first - 1;
    return std::string(std::min<size_t>(colons, 2), ':');
}

const Row* Letters::rowOfLetter(char letter) const {
    const Row* found = nullptr;
    for (const Row& row : mModule.rows)
        if (!row.shortSpec.empty() && row.shortSpec[0] == letter) found = &row;
    return found;
}

Words Letters::typed(const Row& row) {
    std::string letters;
    for (char c : row.shortSpec)
        if (c != ':') letters += c;
    Words words = {"-" + letters};
    if (row.shortSpec.find(':') != std::string::npos || row.hasArg != 0) words.push_back("1");
    return words;
}

// The rows that typing `words` reaches, in order.
std::vector<Letters::Step> Letters::steps(const Words& words) const {
    std::vector<Step> found;
    const std::string letters = words[0].substr(1);
    size_t next = 1;
    for (size_t i = 0; i < letters.size(); ++i) {
        const Row* row = rowOfLetter(letters[i]);
        std::string colons = colonsAfter(letters[i]);
        if (row == nullptr) break;
        Step step{row, false, ""};
        if (!colons.empty() && i + 1 < letters.size()) {
            step = {row, true, letters.substr(i + 1)};
            i = letters.size();
        } else if (colons == ":" && next < words.size()) {
            step = {row, true, words[next++]};
        } else if (colons == ":") {
            break;  // an argument required and none left
        }
        found.push_back(step);
        if (row->longName == "help") break;
    }
    return found;
}

std::string Letters::sentence(const Row& row, bool takesArgument) {
    if (row.shortSpec.empty() || row.longName == "help") return "";
    const Words words = typed(row);
    const Result& result = mRuns.run(mModule, words);
    std::vector<Step> reached = steps(words);

    // Checked against the names the rows give when there is no panel.
    Words named, expected;
    const Result& blind = mRuns.absent(mModule, words);
    const std::string head = mModule.name + " --", tail = ": service interface not available";
    for (size_t at = 0; (at = blind.err.find(head, at)) != std::string::npos;) {
        at += head.size();
        named.push_back(blind.err.substr(at, blind.err.find(tail, at) - at));
    }
    for (const Step& step : reached)
        if (step.row->longName != "help") expected.push_back(step.row->longName);
    if (named != expected) {
        fprintf(stderr, "%s %s: the rows reached (%s) are not those named (%s)\n",
                mModule.name.c_str(), join(words, " ").c_str(), join(expected, " ").c_str(),
                join(named, " ").c_str());
        exit(1);
    }

    std::string unknown;
    size_t at = result.out.find("unknown option: ");
    if (at != std::string::npos) unknown = result.out.substr(at, result.out.find('\n', at) - at);
    if (reached.size() == 1 && reached[0].row == &row && unknown.empty() &&
        !Runs::refused(mModule, result) && reached[0].argument == takesArgument)
        return "";

    // The rows that run: up to the first that refuses on its own.
    std::vector<Step> ran;
    bool stopped = false;
    for (const Step& step : reached) {
        ran.push_back(step);
        Words alone = {"-" + std::string(1, step.row->shortSpec[0]) + step.value};
        if ((stopped = Runs::refused(mModule, mRuns.run(mModule, alone)))) break;
    }
    std::string text = code(join(words, " ")) + " ";
    if (ran.empty())
        return text + "reaches no option: it prints " + code(unknown) + " and the option list.";
    Words parts;
    for (const Step& step : ran)
        parts.push_back(
                (step.row == &row ? std::string("this option") : code("--" + step.row->longName)) +
                (step.argument           ? " with " + code(step.value)
                 : step.row->hasArg != 0 ? std::string(" without an argument")
                                         : std::string()));
    text += "runs " + join(parts, ", then ");
    if (!stopped && !unknown.empty())
        text += ", then prints " + code(unknown) + " and the option list";
    // The calls are those of the options run, told in their entries; only a refusal is said here.
    return text + (stopped ? ": refused." : ".");
}

bool Letters::carriesArgument(const Row& row) const {
    return row.hasArg == 0 && !row.shortSpec.empty() && colonsAfter(row.shortSpec[0]) == ":" &&
           rowOfLetter(row.shortSpec[0]) == &row;
}

Words Letters::clashes() const {
    std::map<char, Words> listed;
    for (const Row& row : mModule.rows)
        if (!row.shortSpec.empty() && row.longName != "help")
            listed[row.shortSpec[0]].push_back("--" + row.longName);
    Words lines;
    for (const auto& [letter, rows] : listed) {
        if (rows.size() < 2) continue;
        const std::string runs = "--" + rowOfLetter(letter)->longName;
        Words others;
        for (const std::string& name : rows)
            if (name != runs) others.push_back(code(name));
        lines.push_back(
                code("-" + std::string(1, letter) + (colonsAfter(letter).empty() ? "" : " 1")) +
                " runs " + code(runs) + ", not " + join(others, ", ") + ".");
    }
    return lines;
}

}  // namespace reference
