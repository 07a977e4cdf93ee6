#pragma once

// The files a user keeps (the panel's memory, a recording): read whole, changed under a lock
// shared by the runs that name them, and replaced whole, never left half-written.

#include <string>

namespace adaptor __attribute__((visibility("hidden"))) {

// The whole file into `text`; false, with errno set, when it cannot be read to its end.
bool readFile(const char* path, std::string& text);

// An exclusive lock on "<path>.lock", made when missing; -1, with errno set, when it cannot be
// taken. Closing the descriptor releases it.
int lockBeside(const std::string& path);

// `text` written whole to "<file>.new" beside the file that `path` names (a symbolic link is
// followed, so it stays a link), which it then replaces; false, with errno set, when it cannot
// be. A file that was there keeps its permissions.
bool replaceFile(const std::string& path, const std::string& text);

// `line` and a newline appended to the file at `path`, made when missing, at once; false, with
// errno set, when it cannot be opened or written whole.
bool appendLine(const char* path, const std::string& line);

}  // namespace adaptor
