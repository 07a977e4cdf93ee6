#include "adaptor/Json.h"

#include <cctype>
#include <cerrno>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <set>
#include <vector>

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

// JSON as its standard defines it, and nothing else: jsoncpp's readers take comments, a byte
// order mark, a lone '-', leading zeros and raw control bytes in strings, and make a float of an
// integer beyond 64 bits, so the text is checked before they see it. Also refused: a key twice
// in one object, bytes that are not UTF-8, and nesting deeper than kDepth (which the readers meet
// by recursion).
class Strict {
public:
    explicit Strict(std::string_view text) : mText(text) {}

    bool document(std::string& error) {
        bool whole = value(0) && (blanks(), mAt == mText.size() || fail("data after the value"));
        if (!whole) error = where() + mError;
        return whole;
    }

private:
    std::string_view mText;
    size_t mAt = 0;
    std::string mError;

    bool fail(const char* what) {
        if (mError.empty()) mError = next() == '/' ? "a comment" : what;
        return false;
    }
    bool more() const { return mAt < mText.size(); }
    char next() const { return more() ? mText[mAt] : '\0'; }
    void blanks() {
        while (next() == ' ' || next() == '\t' || next() == '\n' || next() == '\r') ++mAt;
    }
    std::string where() const {
        size_t line = 1, column = 1;
        for (size_t i = 0; i < mAt && i < mText.size(); ++i, ++column)
            if (mText[i] == '\n') ++line, column = 0;
        return "line " + std::to_string(line) + ", column " + std::to_string(column) + ": ";
    }

    bool value(int depth) {
        blanks();
        if (!more()) return fail("the text ends where a value should be");
        if (depth == kDepth && (next() == '[' || next() == '{'))
            return fail("nested deeper than 64 levels");
        switch (next()) {
            case '{': return members(depth);
            case '[': return elements(depth);
            case '"': return string();
            case 't': return word("true");
            case 'f': return word("false");
            case 'n': return word("null");
            default:
                if (next() == '-' || (next() >= '0' && next() <= '9')) return number();
                if (mText.substr(mAt, 3) == "\xEF\xBB\xBF") return fail("a byte order mark");
                return fail("no value here");
        }
    }

    bool members(int depth) {
        std::set<std::string_view> keys;
        ++mAt;
        blanks();
        if (next() == '}') return ++mAt, true;
        for (;;) {
            blanks();
            if (next() != '"') return fail(next() == '}' ? "a comma before '}'" : "a name in quotes expected");
            size_t begin = mAt;
            if (!string()) return false;
            if (!keys.insert(mText.substr(begin, mAt - begin)).second) {
                mAt = begin;
                return fail("a key twice in one object");
            }
            blanks();
            if (next() != ':') return fail("':' expected");
            ++mAt;
            if (!value(depth + 1)) return false;
            blanks();
            if (next() == '}') return ++mAt, true;
            if (next() != ',') return fail("',' or '}' expected");
            ++mAt;
        }
    }

    bool elements(int depth) {
        ++mAt;
        blanks();
        if (next() == ']') return ++mAt, true;
        for (;;) {
            blanks();
            if (next() == ']') return fail("a comma before ']'");
            if (!value(depth + 1)) return false;
            blanks();
            if (next() == ']') return ++mAt, true;
            if (next() != ',') return fail("',' or ']' expected");
            ++mAt;
        }
    }

    bool string() {
        for (++mAt; more();) {
            unsigned char c = static_cast<unsigned char>(mText[mAt]);
            if (c == '"') return ++mAt, true;
            if (c < 0x20) return fail("a control byte in a string");
            if (c == '\\') {
                ++mAt;
                if (next() == 'u') {
                    for (int i = 1; i <= 4; ++i)
                        if (!isxdigit(static_cast<unsigned char>(mAt + i < mText.size() ? mText[mAt + i] : 0)))
                            return fail("\\u without four hexadecimal digits");
                    mAt += 5;
                } else if (next() && strchr("\"\\/bfnrt", next())) {
                    ++mAt;
                } else {
                    return fail("an escape JSON does not have");
                }
            } else if (c >= 0x80) {
                bool whole = false;
                size_t length = sequence(mText, mAt, whole);
                if (!whole) return fail("a byte that is not UTF-8");
                mAt += length;
            } else {
                ++mAt;
            }
        }
        return fail("a string that never ends");
    }

    bool digits() {
        size_t begin = mAt;
        while (next() >= '0' && next() <= '9') ++mAt;
        return mAt > begin;
    }

    bool number() {
        size_t begin = mAt;
        if (next() == '-') ++mAt;
        if (next() == '0') {
            ++mAt;
            if (next() >= '0' && next() <= '9') return fail("a number with a leading zero");
        } else if (!digits()) {
            return fail("a '-' without digits");
        }
        bool integer = true;
        if (next() == '.') {
            ++mAt;
            integer = false;
            if (!digits()) return fail("no digits after '.'");
        }
        if (next() == 'e' || next() == 'E') {
            ++mAt;
            integer = false;
            if (next() == '+' || next() == '-') ++mAt;
            if (!digits()) return fail("no digits in the exponent");
        }
        if (integer) {
            std::string text(mText.substr(begin, mAt - begin));
            errno = 0;
            if (text[0] == '-') strtoll(text.c_str(), nullptr, 10);
            else strtoull(text.c_str(), nullptr, 10);
            if (errno == ERANGE) {
                mAt = begin;
                return fail("an integer beyond 64 bits");
            }
        }
        return true;
    }

    bool word(const char* spelled) {
        size_t length = strlen(spelled);
        if (mText.substr(mAt, length) != spelled) return fail("no value here");
        mAt += length;
        return true;
    }
};

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
        text += compact ? (i ? ", " : "") : (i ? ",\n" : "\n") + inner;
        if (object) text += jsonString(names[i]) + ": ";
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
    root = Json::Value();
    if (!Strict(text).document(error)) return false;
    // The text is JSON, no deeper than the readers go, so the reader of the old interface reads it
    // as any would, at a fraction of the cost of making a configured one (a dozen settings, each a
    // JSON value: more than the rest of a simulated call costs).
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"
    Json::Reader reader(Json::Features::strictMode());
#pragma GCC diagnostic pop
    bool parsed = reader.parse(text.data(), text.data() + text.size(), root, false);
    if (!parsed) {  // a lone surrogate in a \\u escape
        std::vector<Json::Reader::StructuredError> errors = reader.getStructuredErrors();
        error = errors.empty() ? "not JSON" : errors.front().message;
        root = Json::Value();
    }
    return parsed;
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
