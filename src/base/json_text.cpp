// JSON texts.
#include "base/json_text.h"

#include <charconv>

#include "base/format.h"

namespace tavi {

std::string jsonString(std::string_view s) {
    std::string out = "\"";
    for (char ch : s) {
        auto c = static_cast<unsigned char>(ch);
        switch (ch) {
        case '"':
            out += "\\\"";
            break;
        case '\\':
            out += "\\\\";
            break;
        case '\n':
            out += "\\n";
            break;
        case '\r':
            out += "\\r";
            break;
        case '\t':
            out += "\\t";
            break;
        default:
            if (c < 0x20 || c == 0x7F)
                out += format("\\u%04x", c);
            else
                out.push_back(ch);
        }
    }
    return out + "\"";
}

std::string jsonNumber(double x) {
    char buf[64];
    auto res = std::to_chars(buf, buf + sizeof buf, x);
    return std::string(buf, res.ptr);
}

} // namespace tavi
