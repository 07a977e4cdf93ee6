#include "Text.h"

#include <cstdio>
#include <sstream>

namespace reference {

namespace {

constexpr size_t kShown = 4;  // lines of an example's output shown, the rest counted

}  // namespace

std::string join(const Words& words, const std::string& between) {
    std::string text;
    for (size_t i = 0; i < words.size(); ++i) text += (i ? between : "") + words[i];
    return text;
}

std::string code(const std::string& text) {
    std::string ticks = text.find('`') == std::string::npos ? "`" : "``";
    bool pad = text.empty() || text.front() == '`' || text.back() == '`';
    return ticks + (pad ? " " : "") + text + (pad ? " " : "") + ticks;
}

std::string visible(const std::string& line) {
    std::string text;
    for (unsigned char c : line) {
        char escape[8];
        snprintf(escape, sizeof escape, "\\x%02x", c);
        text += c == '\\'               ? "\\\\"
                : c == '\t'             ? "\\t"
                : c < 0x20 || c == 0x7f ? escape
                                        : std::string(1, static_cast<char>(c));
    }
    if (!text.empty() && text.back() == ' ') text.replace(text.size() - 1, 1, "\\x20");
    return text;
}

std::string wrap(const std::string& text, const std::string& indent) {
    std::string result, line;
    std::istringstream words(text);
    for (std::string word; words >> word;) {
        if (!line.empty() && line != indent && line.size() + 1 + word.size() > kWidth) {
            result += line + "\n";
            line = indent;
        }
        line += (line.empty() || line == indent ? "" : " ") + word;
    }
    return result + line + "\n";
}

std::string commandLine(const Module& module, const Words& words) {
    std::string line = "dumpbrel " + module.name;
    for (const std::string& word : words) {
        bool plain = !word.empty() &&
                     word.find_first_not_of("abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ"
                                            "0123456789-_=,.:/+@%") == std::string::npos;
        std::string quoted = "'";
        for (char c : word) quoted += c == '\'' ? std::string("'\\''") : std::string(1, c);
        line += " " + (plain ? word : quoted + "'");
    }
    return line;
}

std::string example(const Module& module, const Words& words, const Result& result) {
    std::string command = "    $ " + commandLine(module, words);
    Words calls;
    for (const Call& call : Runs::calls(module, result.calls)) calls.push_back(call.text);
    std::string comment =
            "# " + (calls.empty() ? std::string("nothing called") : join(calls, ", "));
    std::string block;
    if (command.size() + 2 + comment.size() <= kWidth) {
        block = command + "  " + comment + "\n";
    } else {
        // On lines of their own, a long line broken after a comma.
        block = command + "\n";
        std::string line = "    " + comment;
        while (line.size() > kWidth) {
            size_t at = line.rfind(", ", kWidth - 1);
            if (at == std::string::npos || at < 12) break;
            block += line.substr(0, at + 1) + "\n";
            line = "    #     " + line.substr(at + 2);
        }
        block += line + "\n";
    }
    std::string out = result.out;
    const std::string& list = dumpbrel_test::optionList(module.name);
    for (size_t at; !list.empty() && (at = out.find(list)) != std::string::npos;)
        out.replace(at, list.size(), "\x01\n");
    Words lines;
    auto add = [&](const std::string& text, const std::string& mark) {
        std::istringstream in(text);
        for (std::string line; std::getline(in, line);)
            lines.push_back("    " + mark + (line == "\x01" ? "(the option list)" : visible(line)));
    };
    add(result.err, "! ");
    add(out, "");
    // A line telling of one more would take the room of the line.
    const size_t shown = lines.size() > kShown + 1 ? kShown : lines.size();
    for (size_t i = 0; i < shown; ++i) block += lines[i] + "\n";
    if (shown < lines.size())
        block += "    ... (" + std::to_string(lines.size() - shown) + " lines more)\n";
    return block;
}

}  // namespace reference
