// UTF-8, UTF-16 and Windows-1252 conversions and small text helpers.
#include "base/text.h"

#include <array>
#include <cstdint>
#include <cstring>

namespace tavi {

namespace {

constexpr char32_t kReplacement = 0xFFFD;

// Windows-1252 bytes 0x80..0x9F; the five undefined ones map to themselves.
constexpr std::array<char16_t, 32> kCp1252High = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

// Length of the valid UTF-8 sequence at `pos`, or 0 when it is not valid.
size_t validSequenceLength(std::string_view s, size_t pos) {
    auto byte = [&](size_t i) { return static_cast<unsigned char>(s[i]); };
    unsigned char b0 = byte(pos);
    if (b0 < 0x80)
        return 1;
    size_t len;
    char32_t min;
    if ((b0 & 0xE0) == 0xC0) {
        len = 2;
        min = 0x80;
    } else if ((b0 & 0xF0) == 0xE0) {
        len = 3;
        min = 0x800;
    } else if ((b0 & 0xF8) == 0xF0) {
        len = 4;
        min = 0x10000;
    } else {
        return 0;
    }
    if (pos + len > s.size())
        return 0;
    char32_t cp = b0 & (0x7F >> len);
    for (size_t i = 1; i < len; ++i) {
        unsigned char b = byte(pos + i);
        if ((b & 0xC0) != 0x80)
            return 0;
        cp = (cp << 6) | (b & 0x3F);
    }
    if (cp < min || cp > 0x10FFFF || (cp >= 0xD800 && cp <= 0xDFFF))
        return 0;
    return len;
}

} // namespace

bool isValidUtf8(std::string_view bytes) {
    size_t pos = 0;
    while (pos < bytes.size()) {
        // Fast path over ASCII, eight bytes at a time: whole files are checked
        // on every read, and most of their bytes are ASCII.
        while (pos + 8 <= bytes.size()) {
            std::uint64_t word;
            std::memcpy(&word, bytes.data() + pos, 8);
            if ((word & 0x8080808080808080u) != 0)
                break;
            pos += 8;
        }
        if (pos == bytes.size())
            break;
        if (static_cast<unsigned char>(bytes[pos]) < 0x80) {
            ++pos;
            continue;
        }
        size_t len = validSequenceLength(bytes, pos);
        if (len == 0)
            return false;
        pos += len;
    }
    return true;
}

std::string windows1252ToUtf8(std::string_view bytes) {
    std::string out;
    out.reserve(bytes.size() + bytes.size() / 8);
    for (char c : bytes) {
        auto b = static_cast<unsigned char>(c);
        if (b < 0x80)
            out.push_back(c);
        else if (b < 0xA0)
            appendUtf8(out, kCp1252High[b - 0x80]);
        else
            appendUtf8(out, b);
    }
    return out;
}

DecodedText decodeText(std::string_view bytes, TextEncoding encoding) {
    DecodedText result;
    if (bytes.starts_with(kUtf8Bom)) {
        result.hadBom = true;
        bytes.remove_prefix(kUtf8Bom.size());
        if (isValidUtf8(bytes)) {
            result.utf8.assign(bytes);
        } else {
            size_t pos = 0;
            while (pos < bytes.size())
                appendUtf8(result.utf8, nextCodePoint(bytes, pos));
        }
        return result;
    }
    if (encoding == TextEncoding::Utf8 && isValidUtf8(bytes)) {
        result.utf8.assign(bytes);
    } else {
        result.wasUtf8 = false;
        result.utf8 = windows1252ToUtf8(bytes);
    }
    return result;
}

std::vector<std::string_view> splitAt(std::string_view text, char separator) {
    std::vector<std::string_view> parts;
    size_t start = 0;
    for (size_t i = 0; i <= text.size(); ++i)
        if (i == text.size() || text[i] == separator) {
            parts.push_back(text.substr(start, i - start));
            start = i + 1;
        }
    return parts;
}

std::vector<std::string_view> splitLines(std::string_view text) {
    std::vector<std::string_view> lines;
    size_t start = 0;
    size_t i = 0;
    while (i < text.size()) {
        char c = text[i];
        if (c == '\n' || c == '\r') {
            lines.push_back(text.substr(start, i - start));
            if (c == '\r' && i + 1 < text.size() && text[i + 1] == '\n')
                ++i;
            start = ++i;
        } else {
            ++i;
        }
    }
    if (start < text.size())
        lines.push_back(text.substr(start));
    return lines;
}

char32_t nextCodePoint(std::string_view text, size_t& pos) {
    auto b0 = static_cast<unsigned char>(text[pos]);
    if (b0 < 0x80) {
        ++pos;
        return b0;
    }
    size_t len = validSequenceLength(text, pos);
    if (len == 0) {
        ++pos;
        return kReplacement;
    }
    char32_t cp = b0 & (0x7F >> len);
    for (size_t i = 1; i < len; ++i)
        cp = (cp << 6) | (static_cast<unsigned char>(text[pos + i]) & 0x3F);
    pos += len;
    return cp;
}

void appendUtf8(std::string& out, char32_t cp) {
    if (cp > 0x10FFFF || (cp >= 0xD800 && cp <= 0xDFFF))
        cp = kReplacement;
    if (cp < 0x80) {
        out.push_back(static_cast<char>(cp));
    } else if (cp < 0x800) {
        out.push_back(static_cast<char>(0xC0 | (cp >> 6)));
        out.push_back(static_cast<char>(0x80 | (cp & 0x3F)));
    } else if (cp < 0x10000) {
        out.push_back(static_cast<char>(0xE0 | (cp >> 12)));
        out.push_back(static_cast<char>(0x80 | ((cp >> 6) & 0x3F)));
        out.push_back(static_cast<char>(0x80 | (cp & 0x3F)));
    } else {
        out.push_back(static_cast<char>(0xF0 | (cp >> 18)));
        out.push_back(static_cast<char>(0x80 | ((cp >> 12) & 0x3F)));
        out.push_back(static_cast<char>(0x80 | ((cp >> 6) & 0x3F)));
        out.push_back(static_cast<char>(0x80 | (cp & 0x3F)));
    }
}

std::string toUtf8(char32_t cp) {
    std::string out;
    appendUtf8(out, cp);
    return out;
}

std::u16string toUtf16(std::string_view utf8) {
    std::u16string out;
    out.reserve(utf8.size());
    size_t pos = 0;
    while (pos < utf8.size()) {
        char32_t cp = nextCodePoint(utf8, pos);
        if (cp >= 0x10000) {
            cp -= 0x10000;
            out.push_back(static_cast<char16_t>(0xD800 + (cp >> 10)));
            out.push_back(static_cast<char16_t>(0xDC00 + (cp & 0x3FF)));
        } else {
            out.push_back(static_cast<char16_t>(cp));
        }
    }
    return out;
}

std::string fromUtf16(std::u16string_view utf16) {
    std::string out;
    out.reserve(utf16.size());
    for (size_t i = 0; i < utf16.size(); ++i) {
        char32_t cp = utf16[i];
        if (cp >= 0xD800 && cp <= 0xDBFF && i + 1 < utf16.size() && utf16[i + 1] >= 0xDC00 &&
            utf16[i + 1] <= 0xDFFF) {
            cp = 0x10000 + ((cp - 0xD800) << 10) + (utf16[i + 1] - 0xDC00);
            ++i;
        }
        appendUtf8(out, cp);
    }
    return out;
}

size_t utf16Length(std::string_view utf8) {
    size_t units = 0;
    size_t pos = 0;
    while (pos < utf8.size())
        units += nextCodePoint(utf8, pos) >= 0x10000 ? 2 : 1;
    return units;
}

std::string_view trimLeft(std::string_view s) {
    size_t i = 0;
    while (i < s.size() && isBlank(s[i]))
        ++i;
    return s.substr(i);
}

std::string_view trimRight(std::string_view s) {
    size_t n = s.size();
    while (n > 0 && isBlank(s[n - 1]))
        --n;
    return s.substr(0, n);
}

std::string_view trim(std::string_view s) {
    return trimRight(trimLeft(s));
}

namespace {
constexpr char upper(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 32) : c;
}
constexpr char lower(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c;
}
} // namespace

bool equalsIgnoreCase(std::string_view a, std::string_view b) {
    if (a.size() != b.size())
        return false;
    for (size_t i = 0; i < a.size(); ++i)
        if (upper(a[i]) != upper(b[i]))
            return false;
    return true;
}

bool startsWithIgnoreCase(std::string_view s, std::string_view prefix) {
    return s.size() >= prefix.size() && equalsIgnoreCase(s.substr(0, prefix.size()), prefix);
}

std::string toUpperAscii(std::string_view s) {
    std::string out(s);
    for (char& c : out)
        c = upper(c);
    return out;
}

std::string toLowerAscii(std::string_view s) {
    std::string out(s);
    for (char& c : out)
        c = lower(c);
    return out;
}

} // namespace tavi
