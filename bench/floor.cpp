// The floor of one run: a program that loads libutils and liblog, as dumpbrel does, and prints
// one String8. Whatever dumpbrel costs beyond this is its own.

#include <cstdio>

#include <log/log.h>
#include <utils/String8.h>

int main() {
    android::String8 text("floor");
    std::printf("%s\n", text.c_str());
    return 0;
}
