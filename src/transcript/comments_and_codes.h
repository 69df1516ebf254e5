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
#include <cstddef>
#include <cstdint>
#include <string>
#include <type_traits>

#include "transcript/char_class.h"
#include "transcript/problems.h"

namespace tavi {

namespace detail {

template <class V, class... A> void scanReport(V& v, ProblemRef<A...> p, const A&... args) {
    v.problem(p.id, problemText(p, args...));
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
    // "[", "]", "{" and "}": outside comments and codes no other character matters.
    constexpr std::uint64_t kBrackets =
        (std::uint64_t{1} << ('[' - 64)) | (std::uint64_t{1} << (']' - 64)) |
        (std::uint64_t{1} << ('{' - 64)) | (std::uint64_t{1} << ('}' - 64));
    auto isBracket = [&](char32_t c) {
        return c >= 64 && c < 128 && ((kBrackets >> (c - 64)) & 1) != 0;
    };
    for (std::size_t i = 1; i < end; ++i) {
        // Bytes only: the code points of a line are all looked at, as the
        // tests compare the two.
        if (sizeof(Char) == 1 && !inComment && !inCode) {
            while (i < end && !isBracket(at(i)))
                ++i;
            if (i == end)
                break;
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
