// The character classes of the transcript notation, defined once: the checker,
// segmentation and the analysis all ask these functions, by code point.
#pragma once

#include <cstdint>

namespace tavi::cls {

namespace detail {
// A set of characters below 128 as two 64-bit masks.
struct AsciiSet {
    std::uint64_t low = 0, high = 0;
    constexpr AsciiSet(const char* chars) {
        for (; *chars; ++chars)
            (*chars < 64 ? low : high) |= std::uint64_t{1} << (*chars & 63);
    }
    constexpr bool has(char32_t c) const {
        return c < 64 ? ((low >> c) & 1) != 0 : c < 128 && ((high >> (c & 63)) & 1) != 0;
    }
};
inline constexpr AsciiSet kSpaces(" \t\n\r\v\f");
inline constexpr AsciiSet kTerminators(".!?~>^");
} // namespace detail

// White space (blank, tab and the other ASCII spacing characters).
constexpr bool isSpace(char32_t c) {
    return c <= U' ' && detail::kSpaces.has(c);
}

// "." "!" "?" "~" ">" "^" and the Arabic question mark U+061F.
constexpr bool isTerminator(char32_t c) {
    return detail::kTerminators.has(c) || c == 0x061F;
}

// Terminator kind as numbered by the notation: 0 "." 1 "!" 2 "?" 3 "~" 4 ">" 5 "^";
// -1 for a character that is not a terminator.
constexpr int terminatorKind(char32_t c) {
    switch (c) {
    case U'.':
        return 0;
    case U'!':
        return 1;
    case U'?':
    case 0x061F:
        return 2;
    case U'~':
        return 3;
    case U'>':
        return 4;
    case U'^':
        return 5;
    default:
        return -1;
    }
}

// Marks inside a word: "/" bound morpheme, "+" clitic, "*" omission,
// "%" idiosyncratic form, "|" root identification, "\" bound prefix, "_" link.
constexpr bool isWordMark(char32_t c) {
    return c == U'/' || c == U'+' || c == U'*' || c == U'%' || c == U'|' || c == U'\\' || c == U'_';
}

constexpr bool isBracket(char32_t c) {
    return c == U'(' || c == U')' || c == U'[' || c == U']' || c == U'{' || c == U'}' ||
           c == U'<' || c == U'>';
}

// Quotation marks that flag an utterance as holding a quotation. The true curly
// quotes U+201C and U+201D are separators but deliberately do not flag it.
constexpr bool isQuotationMark(char32_t c) {
    return c == U'"' || c == 0x1C || c == 0x1D || c == 0xFF93 || c == 0xFF94;
}

// Characters that end a word: white space, ",", the quotation marks, U+201C,
// U+201D, "¿" and "¡".
constexpr bool isSeparator(char32_t c) {
    return isSpace(c) || c == U',' || isQuotationMark(c) || c == 0x201C || c == 0x201D ||
           c == 0xBF || c == 0xA1;
}

// "=" "+" ":" ";" "-" "$" "@": the first characters of the identifier lines.
constexpr bool isLineIdentifier(char32_t c) {
    return c == U'=' || c == U'+' || c == U':' || c == U';' || c == U'-' || c == U'$' || c == U'@';
}

// "&" and "#": may not begin an utterance line; inside a word they are kept as
// characters of the word.
constexpr bool isAmpersandOrHash(char32_t c) {
    return c == U'&' || c == U'#';
}

// Control characters other than white space and the separators U+001C/U+001D.
constexpr bool isControl(char32_t c) {
    return (c < 0x20 && !isSpace(c) && c != 0x1C && c != 0x1D) || c == 0x7F ||
           (c >= 0x80 && c < 0xA0);
}

namespace detail {
constexpr bool computeWordChar(char32_t c) {
    return !isTerminator(c) && !isWordMark(c) && !isBracket(c) && !isSeparator(c) &&
           !isLineIdentifier(c) && !isAmpersandOrHash(c) && !isControl(c);
}
struct AsciiTable {
    bool wordChar[128] = {};
    bool alnum[128] = {};
};
constexpr AsciiTable makeAsciiTable() {
    AsciiTable t;
    for (char32_t c = 0; c < 128; ++c) {
        t.wordChar[c] = computeWordChar(c);
        t.alnum[c] =
            (c >= U'a' && c <= U'z') || (c >= U'A' && c <= U'Z') || (c >= U'0' && c <= U'9');
    }
    return t;
}
inline constexpr AsciiTable kAscii = makeAsciiTable();
} // namespace detail

// A character of a word: anything that is not notation, not white space and not
// a control character.
constexpr bool isWordChar(char32_t c) {
    return c < 128 ? detail::kAscii.wordChar[c] : detail::computeWordChar(c);
}

// The characters that cannot begin an utterance line (a line beginning with one
// that is not a line identifier is reported as "Invalid identifier (%c)").
constexpr bool cannotBeginUtterance(char32_t c) {
    return isLineIdentifier(c) || c == U'\\' || c == U'/' || c == U'*' || c == U'%' || c == U'|' ||
           c == U'[' || c == U']' || isTerminator(c) || isSeparator(c) || c == U'(' || c == U'{' ||
           c == U'<' || c == U')' || c == U'}' || isAmpersandOrHash(c);
}

// Letters and digits as far as the notation cares: ASCII letters and digits and
// every character above U+00BF that is a word character.
constexpr bool isAlnum(char32_t c) {
    return c < 128 ? detail::kAscii.alnum[c] : (c > 0xBF && isWordChar(c));
}

constexpr bool isDigit(char32_t c) {
    return c >= U'0' && c <= U'9';
}

} // namespace tavi::cls
