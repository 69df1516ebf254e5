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

inline std::string utf8(std::u32string_view text) {
    std::string out;
    assignUtf8(out, text);
    return out;
}

} // namespace tavi
