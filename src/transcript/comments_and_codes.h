// The comment and code scan shared by the checker's identifier lines and the
// utterance segmenter: "{...}" comments and "[...]" codes from position 1 (after
// the line's identifier) up to `end`. Faulty brackets are reported and blanked;
// each comment and code that closes is handed to the caller and then blanked, so
// later steps see blanks in its place.
//
// The visitor has
//   void problem(Problem id, std::string message);
//   void comment(size_t open, size_t close); // positions of "{" and "}"
//   void code(size_t open, size_t close);    // positions of "[" and "]"
#pragma once

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <type_traits>

#include "transcript/char_class.h"
#include "transcript/problems.h"

namespace tavi {

namespace detail {

template <class V, class... A> void scanReport(V& v, ProblemRef<A...> p, const A&... args) {
    v.problem(p.id, problemText(p, args...));
}

// The first "[", "]", "{" or "}" from `i` (up to `end`) in a line of bytes,
// eight bytes at a time where none may be one. A byte ORed with 0x26 gives 0x7F
// for each of them (and for "Y" "_" "y" and 0x7F, looked at one by one).
inline std::size_t nextBracket(const char* text, std::size_t i, std::size_t end) {
    constexpr std::uint64_t kOnes = 0x0101010101010101u, kHigh = 0x8080808080808080u;
    auto isBracket = [text](std::size_t k) {
        const char c = text[k];
        return c == '[' || c == ']' || c == '{' || c == '}';
    };
    for (; i + 8 <= end; i += 8) {
        std::uint64_t eight;
        std::memcpy(&eight, text + i, 8);
        // A bit 0x80 in each byte that is 0x7F once ORed with 0x26, or from 128.
        const std::uint64_t low = (eight | 0x26 * kOnes) & ~kHigh;
        std::uint64_t marked = (~((low ^ 0x7F * kOnes) + 0x7F * kOnes) | eight) & kHigh;
        if constexpr (std::endian::native == std::endian::little) {
            for (; marked != 0; marked &= marked - 1)
                if (const std::size_t k = i + std::countr_zero(marked) / 8; isBracket(k))
                    return k;
        } else if (marked != 0) {
            for (std::size_t k = i; k < i + 8; ++k)
                if (isBracket(k))
                    return k;
        }
    }
    while (i < end && !isBracket(i))
        ++i;
    return i;
}
} // namespace detail

template <class Char, class Visitor>
void scanCommentsAndCodes(std::basic_string<Char>& text, std::size_t end, Visitor& v) {
    end = std::min(end, text.size());
    auto blank = [&](std::size_t first, std::size_t last) {
        for (std::size_t k = first; k <= last && k < end; ++k)
            text[k] = Char(' ');
    };
    bool inComment = false, inCode = false;
    std::size_t start = 0;
    auto at = [&](std::size_t i) {
        return static_cast<char32_t>(static_cast<std::make_unsigned_t<Char>>(text[i]));
    };
    for (std::size_t i = 1; i < end; ++i) {
        // Outside comments and codes only brackets matter. Bytes only: the
        // code points of a line are all looked at, as the tests compare the two.
        if constexpr (sizeof(Char) == 1) {
            if (!inComment && !inCode) {
                i = detail::nextBracket(text.data(), i, end);
                if (i == end)
                    break;
            }
        }
        auto c = at(i);
        if (inComment) {
            if (c == U'{') {
                detail::scanReport(v, Problem::NestedComment);
            } else if (c == U'}') {
                v.comment(start, i);
                blank(start, i);
                inComment = false;
            }
        } else if (inCode) {
            if (c == U'[') {
                detail::scanReport(v, Problem::NestedCode);
                text[i] = Char(' ');
            } else if (c == U']') {
                v.code(start, i);
                blank(start, i);
                inCode = false;
            } else if (cls::isSpace(c)) {
                detail::scanReport(v, Problem::BlankInCode);
            } else if (c == U'@' || c == U'=') {
                detail::scanReport(v, Problem::IllegalCodeCharacter, static_cast<char>(c));
            }
        } else if (c == U'{' || c == U'[') {
            (c == U'{' ? inComment : inCode) = true;
            start = i;
        } else if (c == U'}') {
            detail::scanReport(v, Problem::UnmatchedComment);
            text[i] = Char(' ');
        } else if (c == U']') {
            detail::scanReport(v, Problem::UnmatchedCode);
            text[i] = Char(' ');
        }
    }
    if (inComment) {
        detail::scanReport(v, Problem::UnmatchedComment);
        blank(start, end);
    }
    if (inCode) {
        detail::scanReport(v, Problem::UnmatchedCode);
        blank(start, end);
    }
}

} // namespace tavi
