#pragma once

// The files a user keeps (the panel's memory, a recording) and the profiles the panel reads. A
// name may be a symbolic link: what counts is the file it leads to, which must be a regular file
// or nothing. Such a file is read whole, never blocking; changed under a lock beside it that the
// runs naming it share; and replaced whole, never left half-written, keeping its owner, group and
// mode. Each function answers "" when it did its work, else why not, for the one line that names
// the file.

#include <string>

namespace adaptor __attribute__((visibility("hidden"))) {

// What readFile() answers for a name that leads to nothing: no file is an empty one.
extern const char kMissing[];

// The file `name` leads to, through its symbolic links: the name itself where no link is.
std::string target(const std::string& name);

// Whether two names lead to one file.
bool sameFile(const std::string& a, const std::string& b);

// Why the file `name` leads to cannot be used, "" when it can: it is something else than a
// regular file (a directory, a FIFO, a device, a socket), or the tool's own standard output or
// error; to be written, also a file nobody may write (no write bit, root or not) or that this
// user may not.
std::string unusable(const std::string& name, bool written);

// The whole file into `text`: "" when read, kMissing when there is none.
std::string readFile(const std::string& name, std::string& text);

// An exclusive lock on "<file>.lock" beside the file `name` leads to, made when missing: its
// descriptor in `lock`; closing it releases the lock.
std::string lockBeside(const std::string& name, int& lock);

// `text` written whole to "<file>.new" beside the file `name` leads to (a link stays a link),
// then renamed over it; the new file takes the old one's owner, group and mode.
std::string replaceFile(const std::string& name, const std::string& text);

// `line` and a newline appended to the file at `path`, made when missing, at once.
std::string appendLine(const char* path, const std::string& line);

}  // namespace adaptor
