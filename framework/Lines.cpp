#include "Lines.h"

#include <iostream>

namespace android {
namespace dumpbrel {

void printLines(const std::vector<std::string>& lines, std::string_view label) {
    for (const auto& line : lines) std::cout << label << line << '\n';
}

}  // namespace dumpbrel
}  // namespace android
