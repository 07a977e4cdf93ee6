#pragma once

#include "Input.h"

namespace android {
namespace dumpbrel {

// An on/off argument: the whole text read as std::stoi reads it in base 10 (leading blanks, a
// sign, digits, anything behind them ignored), true when the number is not 0. Text that gives
// no number, or one out of the int's range, is refused by Input's one line and gives false;
// the row then returns USAGE without calling. Rows echo the text as typed, not the number.
inline bool toFlag(const Input& in, bool& flag) {
    int value = 0;
    if (!in.toInt(value)) return false;
    flag = value != 0;
    return true;
}

}  // namespace dumpbrel
}  // namespace android
