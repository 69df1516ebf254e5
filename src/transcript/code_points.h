// Conversions between UTF-8 lines and the code-point buffers that
// segmentation works on, with a fast path for the common all-ASCII text.
#pragma once

#include <string>
#include <string_view>

namespace tavi {

// Decodes `line` into `out` (its capacity is reused).
void decodeCodePoints(std::string_view line, std::u32string& out);

// Encodes `text` into `out` (its capacity is reused).
void assignUtf8(std::string& out, std::u32string_view text);

// The same for text that is already UTF-8 (the bytes of an ASCII line).
inline void assignUtf8(std::string& out, std::string_view text) {
    out.assign(text);
}

// A character of either kind of text as a code point (a byte of an ASCII
// line is its code point).
constexpr char32_t codePoint(char c) {
    return static_cast<unsigned char>(c);
}
constexpr char32_t codePoint(char32_t c) {
    return c;
}

inline std::string utf8(std::u32string_view text) {
    std::string out;
    assignUtf8(out, text);
    return out;
}

inline std::string utf8(std::string_view text) {
    return std::string(text);
}

} // namespace tavi
