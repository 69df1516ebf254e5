// UTF-8 <-> code points for segmentation.
#include "transcript/code_points.h"

#include "base/text.h"

namespace tavi {

void decodeCodePoints(std::string_view line, std::u32string& out) {
    unsigned char high = 0;
    for (char c : line)
        high |= static_cast<unsigned char>(c);
    out.resize(line.size());
    if (high < 0x80) { // all ASCII: a plain widening copy
        for (size_t i = 0; i < line.size(); ++i)
            out[i] = static_cast<unsigned char>(line[i]);
        return;
    }
    size_t n = 0;
    size_t pos = 0;
    while (pos < line.size()) {
        auto b = static_cast<unsigned char>(line[pos]);
        if (b < 0x80) {
            out[n++] = b;
            ++pos;
        } else {
            out[n++] = nextCodePoint(line, pos);
        }
    }
    out.resize(n);
}

void assignUtf8(std::string& out, std::u32string_view text) {
    out.resize(text.size());
    for (size_t i = 0; i < text.size(); ++i) {
        char32_t c = text[i];
        if (c >= 0x80) {
            out.resize(i);
            for (size_t k = i; k < text.size(); ++k)
                appendUtf8(out, text[k]);
            return;
        }
        out[i] = static_cast<char>(c);
    }
}

} // namespace tavi
