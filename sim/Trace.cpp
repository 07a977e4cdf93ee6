#include "Trace.h"

namespace sim {

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

}  // namespace sim
