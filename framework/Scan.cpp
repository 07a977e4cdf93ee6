#include "Scan.h"

#include <cstdio>

namespace android {
namespace dumpbrel {

namespace {

bool refuseOne() {
    fputs("Invalid argument format. Use: one arg\n", stderr);
    return false;
}

}  // namespace

bool scanOne(const char* text, int& out) {
    if (text == nullptr || sscanf(text, "%d", &out) != 1) return refuseOne();
    return true;
}

bool scanOne(const char* text, float& out) {
    if (text == nullptr || sscanf(text, "%f", &out) != 1) return refuseOne();
    return true;
}

}  // namespace dumpbrel
}  // namespace android
