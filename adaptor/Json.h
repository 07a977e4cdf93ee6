#pragma once

// JSON text, for everything of the service's that is written or read: profiles, the panel's
// memory, recordings and the trace. The values are jsoncpp's, the platform's JSON library; the
// text is ours, one writer for the profile's layout and one for the trace's.

#include <string>
#include <string_view>

#include <json/value.h>

#include "adaptor/Shape.h"

namespace adaptor __attribute__((visibility("hidden"))) {

// JSON text of a string: only '"', '\\' and control bytes escaped, UTF-8 kept, a byte that is
// not valid UTF-8 written as U+FFFD.
std::string jsonString(std::string_view text);

// The name of a value's JSON type, for the lines that say what was expected instead: "null",
// "boolean", "number", "string", "array", "object".
const char* typeName(const Json::Value& value);

// Parses `text` strictly as JSON: no comments, nothing after the value, no trailing comma, no
// key twice in an object, no byte order mark, only UTF-8, at most 64 levels deep. False, with
// `error` saying where and what, when it is not; never throws.
bool parse(std::string_view text, Json::Value& root, std::string& error);

// A value as a profile's file holds it: two blanks a level, "name": value, members in the order
// of their names, a float that JSON has no number for spelled "inf", "-inf" or "nan". With
// `compact`, on one line: {"name": value, "other": [1, 2]}.
std::string profileText(const Json::Value& value, bool compact = false);

// A value as the trace writes it, by its type at the interface: floats as C's %g, records'
// fields in their order with ", " and ": " between them, arrays with ", ".
void traceText(std::string& line, const Json::Value& value, const Type& type);

}  // namespace adaptor
