// Text in the core is UTF-8 in std::string. Files come from many systems, so
// this is where bytes become text: byte order marks, the Windows-1252 fallback
// for files that are not valid UTF-8, the three line-end styles, and the
// UTF-16 view that fixed-width file fields and hashes count in.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tavi {

inline constexpr std::string_view kUtf8Bom = "\xEF\xBB\xBF";

struct DecodedText {
    std::string utf8;    // the text, without the byte order mark
    bool hadBom = false; // the bytes began with EF BB BF
    bool wasUtf8 = true; // false when the bytes were read as Windows-1252
};

// How the bytes of a file without a byte order mark are read: as UTF-8 (and,
// when they are not valid UTF-8, as Windows-1252), or always as Windows-1252.
enum class TextEncoding { Utf8, Windows1252 };

// Bytes of a text file as UTF-8: a byte order mark is removed; text that is not
// valid UTF-8 is read as Windows-1252 (after a byte order mark, invalid
// sequences become U+FFFD instead). With `Windows1252`, text without a byte
// order mark is read as Windows-1252 even when it would be valid UTF-8.
DecodedText decodeText(std::string_view bytes, TextEncoding encoding = TextEncoding::Utf8);

bool isValidUtf8(std::string_view bytes);
std::string windows1252ToUtf8(std::string_view bytes);

// Lines split at LF, CR LF or a lone CR; the line ends are not kept. A final
// line end does not start another line, so "a\nb\n" is two lines.
std::vector<std::string_view> splitLines(std::string_view text);

// The pieces of `text` between the separators, empty ones kept: "a,,b" is
// three pieces and "" is one.
std::vector<std::string_view> splitAt(std::string_view text, char separator);

// Decodes the code point at `pos` and moves `pos` past it. An invalid sequence
// yields U+FFFD and moves one byte.
char32_t nextCodePoint(std::string_view text, size_t& pos);
void appendUtf8(std::string& out, char32_t cp);
std::string toUtf8(char32_t cp);

std::u16string toUtf16(std::string_view utf8);
std::string fromUtf16(std::u16string_view utf16);
// Length in UTF-16 code units, the unit that fixed widths count in.
size_t utf16Length(std::string_view utf8);

// White space as the notation and the keyword files see it: blank, tab, and
// the other ASCII spacing characters.
constexpr bool isBlank(char c) {
    return c == ' ' || c == '\t' || c == '\n' || c == '\r' || c == '\v' || c == '\f';
}
std::string_view trim(std::string_view s);
std::string_view trimLeft(std::string_view s);
std::string_view trimRight(std::string_view s);

bool equalsIgnoreCase(std::string_view a, std::string_view b);
bool startsWithIgnoreCase(std::string_view s, std::string_view prefix);
std::string toUpperAscii(std::string_view s);
std::string toLowerAscii(std::string_view s);

} // namespace tavi
