#pragma once

#include <sstream>
#include <string>
#include <vector>

namespace android {
namespace dumpbrel {

// The whole text split at every comma, by std::getline until it fails: fields in the middle
// may be empty, a comma at the very end adds no empty field, and an empty or missing text
// gives no field at all.
inline std::vector<std::string> commaList(const char* text) {
    std::vector<std::string> list;
    if (text == nullptr) return list;
    std::istringstream stream(text);
    for (std::string field; std::getline(stream, field, ',');) list.push_back(field);
    return list;
}

}  // namespace dumpbrel
}  // namespace android
