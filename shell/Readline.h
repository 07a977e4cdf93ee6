#pragma once

#include <termios.h>

#include <string>
#include <unordered_map>
#include <vector>

namespace android {
namespace dumpbrel {

// The prompt's line editor: raw keys from descriptor 0, one redraw path, history for the run,
// Tab completion of sub-service names and long options.
class Readline {
public:
    using Vocabulary = std::unordered_map<std::string, std::vector<std::string>>;

    // ANSI foreground codes, written into the escape sequence as they are.
    enum Color { COLOR_GREEN = 32, COLOR_BLUE = 34, COLOR_MAGENTA = 35 };

    // What read_key() gives at the end of input instead of a byte.
    static constexpr int kEndOfInput = -1;

    // Copies the vocabulary and puts the terminal into its editing mode.
    explicit Readline(const Vocabulary& commands);
    // Gives the terminal back the settings it was found with.
    ~Readline();

    // One line, stored in the history when it is not empty.
    std::string readline(const std::string& prompt);
    // True once standard input has ended; the line then returned is empty.
    bool end_of_input() const { return mEndOfInput; }

    // Terminal layer.
    void enable_raw_mode();
    void disable_raw_mode();
    int read_key();
    void print_with_color(Color color, const std::string& text);
    void print_with_color_newline(Color color, const std::string& text);
    void print_prompt(const std::string& prompt);
    void clear_line(const std::string& prompt, const std::string& line);
    void move_cursor_by_offset(int offset);

    // Line editing and history.
    std::string handle_input(const std::string& prompt);
    void add_history(const std::string& line);

    // Word splitting of a finished line: runs of non-blank bytes, no quoting.
    static std::vector<std::string> split_line(const std::string& text);
    static int countWords(const std::string& text);
    // Pointers to the words of `text` and a null behind them; valid until the next call.
    static std::vector<char*> tokenize_line(const std::string& text);

    // Completion.
    static std::string find_longest_common_prefix(const std::vector<std::string>& words);
    std::string complete_command(const std::string& text, bool& needRedraw, bool& singleMatch);
    std::string handle_command_completion(const std::string& word, bool& needRedraw,
                                          bool& singleMatch);
    std::string handle_option_completion(const std::string& command, const std::string& word,
                                         bool& needRedraw, bool& singleMatch);
    void print_all_commands();
    void print_available_options(const std::string& command);

private:
    struct termios mSavedTermios {};
    std::vector<std::string> mHistory;
    int mHistoryIndex = 0;
    Vocabulary mCommandOptions;
    bool mEndOfInput = false;

    // Pieces of output that the redraw path joins into one write.
    void put_color(Color color, const std::string& text);
    void put_clear_line(const std::string& prompt, const std::string& line);
    void put_cursor_offset(int offset);
    void flush();
    // Lines built with appendLine (Readline.cpp), written as one piece.
    void print_listing(const std::string& listing);
    // Rewrites the line and puts the terminal cursor where `cursor` is: one write.
    void redraw(const std::string& prompt, const std::string& line, size_t cursor);
};

}  // namespace dumpbrel
}  // namespace android
