#include "Input.h"

#include <cerrno>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <sstream>

#include "ListCommand.h"

namespace android {
namespace dumpbrel {

namespace {

// Writes `text` on one line: printable bytes as they are, the rest as \xNN.
void putQuoted(std::string_view text) {
    fputc('"', stderr);
    for (unsigned char c : text) {
        if (c < 0x20 || c == 0x7f || c == '"' || c == '\\')
            fprintf(stderr, "\\x%02x", c);
        else
            fputc(c, stderr);
    }
    fputc('"', stderr);
}

}  // namespace

std::vector<std::string> Input::fields(size_t count, char delimiter) const {
    std::vector<std::string> out(count);
    if (text == nullptr) return out;
    std::istringstream stream(text);
    for (auto& field : out) std::getline(stream, field, delimiter);
    return out;
}

bool Input::toInt(const std::string& s, int& out, int base) const {
    const char* begin = s.c_str();
    char* end = nullptr;
    errno = 0;
    long value = strtol(begin, &end, base);
    if (end == begin) {
        refuse("not a number", s);
        return false;
    }
    if (errno == ERANGE || value < INT_MIN || value > INT_MAX) {
        refuse("number out of range", s);
        return false;
    }
    out = static_cast<int>(value);
    return true;
}

bool Input::toULong(const std::string& s, unsigned long& out, int base) const {
    const char* begin = s.c_str();
    char* end = nullptr;
    errno = 0;
    unsigned long value = strtoul(begin, &end, base);
    if (end == begin) {
        refuse("not a number", s);
        return false;
    }
    if (errno == ERANGE) {
        refuse("number out of range", s);
        return false;
    }
    out = value;
    return true;
}

bool Input::toInt(int& out, int base) const {
    return text != nullptr && toInt(std::string(text), out, base);
}

bool Input::toFlag(bool& flag) const {
    int value = 0;
    if (!toInt(value)) return false;
    flag = value != 0;
    return true;
}

std::vector<std::string> Input::commaList() const {
    std::vector<std::string> list;
    if (text == nullptr) return list;
    std::istringstream stream(text);
    for (std::string field; std::getline(stream, field, ',');) list.push_back(field);
    return list;
}

namespace {

bool refuseOne() {
    fputs("Invalid argument format. Use: one arg\n", stderr);
    return false;
}

}  // namespace

bool Input::scanOne(int& out) const {
    if (text == nullptr || sscanf(text, "%d", &out) != 1) return refuseOne();
    return true;
}

bool Input::scanOne(float& out) const {
    if (text == nullptr || sscanf(text, "%f", &out) != 1) return refuseOne();
    return true;
}

void Input::refuse(std::string_view problem) const {
    const ListCommand::Option* row = mCommand.runningOption();
    std::string name = mCommand.getName();
    fprintf(stderr, "%s --%.*s: %.*s\n", name.c_str(),
            row ? static_cast<int>(row->longOption.size()) : 0,
            row ? row->longOption.data() : "", static_cast<int>(problem.size()), problem.data());
}

void Input::refuse(std::string_view problem, std::string_view refused) const {
    const ListCommand::Option* row = mCommand.runningOption();
    std::string name = mCommand.getName();
    fprintf(stderr, "%s --%.*s: %.*s: ", name.c_str(),
            row ? static_cast<int>(row->longOption.size()) : 0,
            row ? row->longOption.data() : "", static_cast<int>(problem.size()), problem.data());
    putQuoted(refused);
    fputc('\n', stderr);
}

}  // namespace dumpbrel
}  // namespace android
