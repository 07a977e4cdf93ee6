#include "adaptor/Json.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <sstream>

#include <json/reader.h>

namespace adaptor {

namespace {

// The length of the well-formed UTF-8 sequence at text[at], or of its well-formed beginning
// when it breaks off (then `whole` is false); 0 when the byte starts none.
size_t sequence(std::string_view text, size_t at, bool& whole) {
    const auto byte = [&](size_t i) { return static_cast<unsigned char>(text[i]); };
    unsigned char lead = byte(at);
    size_t length = lead < 0xC2 ? 0 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : lead < 0xF5 ? 4 : 0;
    if (length == 0) return 0;
    // The range of the second byte: no overlong form, no surrogate, nothing past U+10FFFF.
    unsigned char low = lead == 0xE0 ? 0xA0 : lead == 0xF0 ? 0x90 : 0x80;
    unsigned char high = lead == 0xED ? 0x9F : lead == 0xF4 ? 0x8F : 0xBF;
    size_t i = 1;
    for (; i < length && at + i < text.size(); ++i) {
        unsigned char next = byte(at + i);
        if (next < (i == 1 ? low : 0x80) || next > (i == 1 ? high : 0xBF)) break;
    }
    whole = i == length;
    return i;
}

constexpr int kDepth = 64;

std::string where(std::string_view text, size_t at) {
    size_t line = 1, column = 1;
    for (size_t i = 0; i < at && i < text.size(); ++i, ++column)
        if (text[i] == '\n') ++line, column = 0;
    return "line " + std::to_string(line) + ", column " + std::to_string(column) + ": ";
}

// What jsoncpp does not refuse itself: bytes that are not UTF-8, nesting deeper than kDepth
// (which it would meet by recursion), and integers beyond 64 bits (which it would make floats).
bool prescan(std::string_view text, std::string& error) {
    int depth = 0;
    bool inString = false;
    for (size_t at = 0; at < text.size(); ++at) {
        unsigned char c = static_cast<unsigned char>(text[at]);
        if (c >= 0x80) {
            bool whole = false;
            size_t length = sequence(text, at, whole);
            if (!whole) return error = where(text, at) + "a byte that is not UTF-8", false;
            at += length - 1;
        } else if (inString) {
            if (c == '\\') ++at;
            else if (c == '"') inString = false;
        } else if (c == '"') {
            inString = true;
        } else if (c == '[' || c == '{') {
            if (++depth > kDepth)
                return error = where(text, at) + "nested deeper than " + std::to_string(kDepth) +
                               " levels", false;
        } else if (c == ']' || c == '}') {
            --depth;
        } else if (c == '-' || (c >= '0' && c <= '9')) {
            size_t end = at + (c == '-');
            while (end < text.size() && text[end] >= '0' && text[end] <= '9') ++end;
            bool integer = end == text.size() || !strchr(".eE", text[end]);
            std::string digits(text.substr(at, end - at));
            errno = 0;
            if (integer && c == '-') strtoll(digits.c_str(), nullptr, 10);
            if (integer && c != '-') strtoull(digits.c_str(), nullptr, 10);
            if (errno == ERANGE)
                return error = where(text, at) + "an integer beyond 64 bits", false;
            at = end - 1;
        }
    }
    return true;
}

void number(std::string& text, double value) {
    if (!std::isfinite(value)) {
        text += std::isnan(value) ? "\"nan\"" : value < 0 ? "\"-inf\"" : "\"inf\"";
        return;
    }
    char digits[32];  // the shorter of two precisions that reads back the same
    snprintf(digits, sizeof digits, "%.15g", value);
    if (strtod(digits, nullptr) != value) snprintf(digits, sizeof digits, "%.17g", value);
    text += digits;
    if (!strpbrk(digits, ".e")) text += ".0";
}

void profile(std::string& text, const Json::Value& value, const std::string& indent, bool compact) {
    bool object = value.isObject();
    if ((!object && !value.isArray()) || value.empty()) {
        switch (value.type()) {
            case Json::stringValue: text += jsonString(value.asString()); break;
            case Json::booleanValue: text += value.asBool() ? "true" : "false"; break;
            case Json::intValue: text += std::to_string(value.asLargestInt()); break;
            case Json::uintValue: text += std::to_string(value.asLargestUInt()); break;
            case Json::realValue: number(text, value.asDouble()); break;
            case Json::objectValue: text += "{}"; break;
            case Json::arrayValue: text += "[]"; break;
            default: text += "null";
        }
        return;
    }
    const std::string inner = compact ? "" : indent + "  ";
    text += object ? "{" : "[";
    const Json::Value::Members names = object ? value.getMemberNames() : Json::Value::Members();
    for (Json::ArrayIndex i = 0; i < value.size(); ++i) {
        text += compact ? (i ? "," : "") : (i ? ",\n" : "\n") + inner;
        if (object) text += jsonString(names[i]) + (compact ? ":" : ": ");
        profile(text, object ? value[names[i]] : value[i], inner, compact);
    }
    text += compact ? "" : "\n" + indent;
    text += object ? "}" : "]";
}

}  // namespace

std::string jsonString(std::string_view text) {
    static const char kHex[] = "0123456789abcdef";
    std::string json = "\"";
    for (size_t at = 0; at < text.size();) {
        unsigned char c = static_cast<unsigned char>(text[at]);
        if (c >= 0x80) {
            bool whole = false;
            size_t length = sequence(text, at, whole);
            json += whole ? text.substr(at, length) : std::string_view("\xEF\xBF\xBD");
            at += length ? length : 1;
            continue;
        }
        ++at;
        switch (c) {
            case '"': json += "\\\""; break;
            case '\\': json += "\\\\"; break;
            case '\b': json += "\\b"; break;
            case '\f': json += "\\f"; break;
            case '\n': json += "\\n"; break;
            case '\r': json += "\\r"; break;
            case '\t': json += "\\t"; break;
            default:
                if (c < 0x20) {
                    json += "\\u00";
                    json += kHex[c >> 4];
                    json += kHex[c & 15];
                } else {
                    json += static_cast<char>(c);
                }
        }
    }
    return json + "\"";
}

const char* typeName(const Json::Value& value) {
    switch (value.type()) {
        case Json::nullValue: return "null";
        case Json::booleanValue: return "boolean";
        case Json::stringValue: return "string";
        case Json::arrayValue: return "array";
        case Json::objectValue: return "object";
        default: return "number";
    }
}

bool parse(std::string_view text, Json::Value& root, std::string& error) {
    if (!prescan(text, error)) return false;
    Json::CharReaderBuilder builder;
    Json::CharReaderBuilder::strictMode(&builder.settings_);
    std::unique_ptr<Json::CharReader> reader(builder.newCharReader());
    std::string errors;
    bool parsed = false;
    try {
        parsed = reader->parse(text.data(), text.data() + text.size(), &root, &errors);
    } catch (const std::exception& e) {
        errors = e.what();
    }
    if (parsed) return true;
    // "* Line 1, Column 2\n  Missing ',' or '}' in object declaration\n..." to one line.
    std::istringstream lines(errors);
    std::string place, what;
    std::getline(lines, place);
    std::getline(lines, what);
    if (place.rfind("* Line ", 0) == 0) {
        place = "line " + place.substr(7);
        size_t column = place.find(", Column ");
        if (column != std::string::npos) place.replace(column, 9, ", column ");
        error = place + ": " + what.substr(what.find_first_not_of(' ') == std::string::npos
                                               ? 0 : what.find_first_not_of(' '));
    } else {
        error = place;
    }
    root = Json::Value();
    return false;
}

std::string profileText(const Json::Value& value, bool compact) {
    std::string text;
    profile(text, value, "", compact);
    return text;
}

void traceText(std::string& line, const Json::Value& value, const Type& type) {
    switch (type.kind) {
        case Kind::Float:
            if (value.isNumeric()) {
                char text[64];
                snprintf(text, sizeof text, "%g", static_cast<double>(static_cast<float>(value.asDouble())));
                line += text;
                return;
            }
            break;
        case Kind::Text:
            if (value.isString()) return void(line += jsonString(value.asString()));
            break;
        case Kind::Record:
            if (value.isObject()) {
                line += '{';
                for (unsigned i = 0; i < type.record->count; ++i) {
                    const Field& f = type.record->fields[i];
                    if (i) line += ", ";
                    line += '"';
                    line += f.name;
                    line += "\": ";
                    traceText(line, value[f.name], f.type);
                }
                line += '}';
                return;
            }
            break;
        case Kind::Vector:
        case Kind::Array:
            if (value.isArray()) {
                line += '[';
                for (Json::ArrayIndex i = 0; i < value.size(); ++i) {
                    if (i) line += ", ";
                    traceText(line, value[i], *type.element);
                }
                line += ']';
                return;
            }
            break;
        default:
            break;
    }
    line += profileText(value, true);  // booleans, integers, null
}

}  // namespace adaptor
