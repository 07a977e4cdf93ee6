#pragma once

// The reference's text: Markdown pieces, printed output made readable, lines wrapped.

#include <string>

#include "Runs.h"

namespace reference {

constexpr size_t kWidth = 100;  // no line is longer

std::string join(const Words& words, const std::string& between);

// `text` as code, with enough backticks.
std::string code(const std::string& text);

// A printed line as it can be read: a tab `\t`, another control byte `\xNN`, a backslash `\\`,
// a blank that ends the line `\x20`.
std::string visible(const std::string& line);

// `text` wrapped at blanks to kWidth columns, each line after the first starting with `indent`.
std::string wrap(const std::string& text, const std::string& indent = "");

// "dumpbrel <sub-service> <words>", each word quoted where a shell would need it.
std::string commandLine(const Module& module, const Words& words);

// A run as a terminal shows it, indented as code: the command with the calls the panel received
// after `#`, then what it printed (standard error after `! `, the option list in words). An
// output of more than a few lines is cut, with the count of the rest.
std::string example(const Module& module, const Words& words, const Result& result);

}  // namespace reference
