#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace android {
namespace dumpbrel {

class DumpBrel;

// One dispatch: word 0 is the tool's name, word 1 the sub-service. The caller owns the words.
struct Arg {
    int argc;
    char** argv;
};

// Handler result: 0 goes on, anything else stops parsing.
using Status = int32_t;
constexpr Status OK = 0;
constexpr Status USAGE = 1;

// A sub-service of the tool.
class Command {
public:
    explicit Command(DumpBrel& parent) : mParent(&parent) {}
    virtual ~Command() {}

    virtual Status main(const Arg& arg) = 0;
    virtual void usage() const = 0;
    virtual std::string getName() const = 0;
    virtual std::string getSimpleDescription() const = 0;
    virtual std::vector<std::string> getAllLongOptions() const = 0;

protected:
    DumpBrel* mParent;
};

}  // namespace dumpbrel
}  // namespace android
