#include "Readline.h"

#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <iostream>
#include <sstream>

namespace android {
namespace dumpbrel {

namespace {

constexpr int kEscape = 27;
constexpr int kTab = 9;
constexpr int kBackspace = 127;
constexpr int kCtrlH = 8;

bool beginsWith(const std::string& text, const std::string& start) {
    return text.compare(0, start.size(), start) == 0;
}

// One line of a listing, the bytes of print_with_color_newline. A listing is built whole and
// written in one piece: one write, where a flush per line would cost two.
void appendLine(std::string& listing, Readline::Color color, const std::string& text) {
    listing += "\033[49;";
    listing += std::to_string(static_cast<int>(color));
    listing += 'm';
    listing += text;
    listing += "\033[0m\n";
}

}  // namespace

Readline::Readline(const Vocabulary& commands) : mCommandOptions(commands) {
    enable_raw_mode();
}

Readline::~Readline() {
    disable_raw_mode();
}

// ---- terminal -------------------------------------------------------------------------------

void Readline::enable_raw_mode() {
    tcgetattr(0, &mSavedTermios);
    struct termios raw = mSavedTermios;
    raw.c_lflag &= ~(ICANON | ECHO);
    tcsetattr(0, TCSAFLUSH, &raw);
}

void Readline::disable_raw_mode() {
    tcsetattr(0, TCSAFLUSH, &mSavedTermios);
    tcflush(0, TCIFLUSH);
}

int Readline::read_key() {
    unsigned char byte;
    for (;;) {
        ssize_t n = read(0, &byte, 1);
        if (n == 1) return byte;  // unsigned: bytes from 0x80 up stay positive
        if (n == 0) return kEndOfInput;
        if (errno != EAGAIN) exit(1);
    }
}

void Readline::put_color(Color color, const std::string& text) {
    std::cout << "\033[49;" << static_cast<int>(color) << 'm' << text << "\033[0m";
}

void Readline::put_clear_line(const std::string& prompt, const std::string& line) {
    std::cout << "\033[2K\r";
    put_color(COLOR_BLUE, prompt + line);
}

void Readline::put_cursor_offset(int offset) {
    if (offset > 0) std::cout << "\033[" << offset << 'C';
    if (offset < 0) std::cout << "\033[" << -static_cast<long long>(offset) << 'D';
}

void Readline::flush() {
    std::cout.flush();
}

void Readline::print_listing(const std::string& listing) {
    std::cout << listing;
    flush();
}

void Readline::print_with_color(Color color, const std::string& text) {
    put_color(color, text);
    flush();
}

void Readline::print_with_color_newline(Color color, const std::string& text) {
    print_with_color(color, text);
    std::cout << '\n';
}

void Readline::print_prompt(const std::string& prompt) {
    print_with_color(COLOR_BLUE, prompt);
}

void Readline::clear_line(const std::string& prompt, const std::string& line) {
    put_clear_line(prompt, line);
    flush();
}

void Readline::move_cursor_by_offset(int offset) {
    if (offset == 0) return;
    put_cursor_offset(offset);
    flush();
}

void Readline::redraw(const std::string& prompt, const std::string& line, size_t cursor) {
    put_clear_line(prompt, line);
    put_cursor_offset(static_cast<int>(cursor) - static_cast<int>(line.size()));
    flush();
}

// ---- line editing ---------------------------------------------------------------------------

std::string Readline::readline(const std::string& prompt) {
    std::string line = handle_input(prompt);
    add_history(line);
    return line;
}

void Readline::add_history(const std::string& line) {
    if (line.empty()) return;
    mHistory.push_back(line);
    mHistoryIndex = static_cast<int>(mHistory.size());
}

std::string Readline::handle_input(const std::string& prompt) {
    std::string line;
    size_t cursor = 0;
    int tabCount = 0;
    bool needRedraw = false;
    bool singleMatch = false;
    const int historySize = static_cast<int>(mHistory.size());

    print_prompt(prompt);
    if (!mHistory.empty()) mHistoryIndex = historySize;

    auto endOfInput = [this]() {
        mEndOfInput = true;
        std::cout << '\n';
        flush();
        return std::string();
    };

    for (;;) {
        int key = read_key();
        if (key == kEndOfInput) return endOfInput();

        if (key == '\n' || key == '\r') {
            std::cout << '\n';
            flush();
            return line;
        }

        if (key == kBackspace || key == kCtrlH) {
            if (cursor == 0) continue;  // the Tab count survives this
            line.erase(--cursor, 1);
            redraw(prompt, line, cursor);
            tabCount = 0;
            singleMatch = false;
            continue;
        }

        if (key == kTab) {
            if (++tabCount == 1) {
                std::string insert = complete_command(line.substr(0, cursor), needRedraw, singleMatch);
                if (!insert.empty()) {
                    line.insert(cursor, insert);
                    cursor += insert.size();
                    redraw(prompt, line, cursor);
                    tabCount = 0;
                } else if (needRedraw && !singleMatch) {
                    clear_line(prompt, line);
                } else if (line.empty()) {
                    std::cout << '\n';
                    print_all_commands();
                    clear_line(prompt, line);
                    tabCount = 0;
                }
            } else {
                std::cout << '\n';
                flush();
                print_available_options(line.substr(0, line.find(' ')));
                clear_line(prompt, line);
                tabCount = 0;
            }
            continue;
        }

        tabCount = 0;
        singleMatch = false;

        if (key != kEscape) {
            line.insert(cursor++, 1, static_cast<char>(key));
            redraw(prompt, line, cursor);
            continue;
        }

        // Escape: exactly two more bytes, whatever they are.
        int first = read_key();
        if (first == kEndOfInput) return endOfInput();
        int second = read_key();
        if (second == kEndOfInput) return endOfInput();
        if (first != '[') continue;
        switch (second) {
            case 'A':  // Up
                if (mHistoryIndex >= 1) {
                    line = mHistory[--mHistoryIndex];
                    cursor = line.size();
                    redraw(prompt, line, cursor);
                }
                break;
            case 'B':  // Down
                if (!mHistory.empty() && mHistoryIndex < historySize - 1) {
                    line = mHistory[++mHistoryIndex];
                    cursor = line.size();
                    redraw(prompt, line, cursor);
                } else if (!mHistory.empty() && mHistoryIndex == historySize - 1) {
                    ++mHistoryIndex;
                    line.clear();
                    cursor = 0;
                    clear_line(prompt, line);
                }
                break;
            case 'C':  // Right
                if (cursor < line.size()) {
                    ++cursor;
                    std::cout << "\033[C";
                    flush();
                }
                break;
            case 'D':  // Left
                if (cursor > 0) {
                    --cursor;
                    std::cout << "\033[D";
                    flush();
                }
                break;
            default:
                break;
        }
    }
}

// ---- words ----------------------------------------------------------------------------------

std::vector<std::string> Readline::split_line(const std::string& text) {
    std::istringstream stream(text);
    std::vector<std::string> words;
    for (std::string word; stream >> word;) words.push_back(word);
    return words;
}

int Readline::countWords(const std::string& text) {
    return static_cast<int>(split_line(text).size());
}

std::vector<char*> Readline::tokenize_line(const std::string& text) {
    static std::vector<std::string> words;
    words = split_line(text);
    std::vector<char*> pointers;
    pointers.reserve(words.size() + 1);
    for (auto& word : words) pointers.push_back(word.data());
    pointers.push_back(nullptr);
    return pointers;
}

// ---- completion -----------------------------------------------------------------------------

std::string Readline::find_longest_common_prefix(const std::vector<std::string>& words) {
    if (words.empty()) return std::string();
    std::string prefix = words[0];
    for (size_t i = 1; i < words.size(); ++i) {
        size_t n = 0;
        while (n < prefix.size() && n < words[i].size() && prefix[n] == words[i][n]) ++n;
        prefix.resize(n);
    }
    return prefix;
}

std::string Readline::complete_command(const std::string& text, bool& needRedraw,
                                       bool& singleMatch) {
    std::string trimmed = text.substr(std::min(text.find_first_not_of(" \t\n\r\f\v"), text.size()));
    std::vector<std::string> words = split_line(trimmed);
    needRedraw = false;
    if (words.size() == 1) return handle_command_completion(words[0], needRedraw, singleMatch);
    if (words.size() >= 2)
        return handle_option_completion(words.front(), words.back(), needRedraw, singleMatch);
    return std::string();
}

std::string Readline::handle_command_completion(const std::string& word, bool& needRedraw,
                                                bool& singleMatch) {
    std::vector<std::string> candidates;
    for (const auto& entry : mCommandOptions)
        if (beginsWith(entry.first, word)) candidates.push_back(entry.first);
    if (candidates.empty()) {
        needRedraw = true;
        return std::string();
    }
    std::string prefix = find_longest_common_prefix(candidates);
    if (candidates.size() == 1) {
        singleMatch = true;
    } else {
        needRedraw = true;
        std::string listing = "\n";
        for (const auto& candidate : candidates) appendLine(listing, COLOR_GREEN, candidate);
        print_listing(listing);
    }
    return prefix.substr(word.size());
}

std::string Readline::handle_option_completion(const std::string& command, const std::string& word,
                                               bool& needRedraw, bool& singleMatch) {
    if (word == "-") {
        needRedraw = true;
        return "-";
    }
    if (word == "--") {
        needRedraw = true;
        return std::string();
    }
    auto found = mCommandOptions.find(command);
    if (found == mCommandOptions.end()) return std::string();
    std::vector<std::string> candidates;
    for (const auto& option : found->second)
        if (beginsWith(option, word)) candidates.push_back(option);
    if (candidates.empty()) return std::string();
    std::string prefix = find_longest_common_prefix(candidates);
    if (candidates.size() == 1) {
        singleMatch = true;
    } else {
        needRedraw = true;
        std::string listing = "\n";
        for (const auto& candidate : candidates) appendLine(listing, COLOR_MAGENTA, candidate);
        print_listing(listing);
    }
    return prefix.substr(word.size());
}

void Readline::print_all_commands() {
    std::string listing;
    for (const auto& entry : mCommandOptions) appendLine(listing, COLOR_GREEN, entry.first);
    print_listing(listing);
}

void Readline::print_available_options(const std::string& command) {
    auto found = mCommandOptions.find(command);
    if (found == mCommandOptions.end()) return;
    std::string listing;
    for (const auto& option : found->second) appendLine(listing, COLOR_MAGENTA, option);
    print_listing(listing);
}

}  // namespace dumpbrel
}  // namespace android
