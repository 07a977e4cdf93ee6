#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace android {
namespace dumpbrel {

// Writes the strings of `lines` to standard output from first to last, each on a line of its
// own behind `label`. An empty list writes nothing.
void printLines(const std::vector<std::string>& lines, std::string_view label = {});

}  // namespace dumpbrel
}  // namespace android
