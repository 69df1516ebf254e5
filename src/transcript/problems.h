// The checker's problems as one table (problems.def): every check names a
// problem by its `Problem` value and passes what its message needs; the code,
// the sign and the text come from the table. The table is checked at compile
// time against each report: the number and kinds of the arguments must fit the
// message's "%s" (text), "%c" (character) and "%d" (number) places.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>
#include <type_traits>

namespace tavi {

enum class Problem : std::uint8_t {
#define PROBLEM(name, sign, code, message) name,
#include "transcript/problems.def"
#undef PROBLEM
};

enum class ProblemSign : std::uint8_t { Error, Warning };

struct ProblemInfo {
    std::string_view name;
    ProblemSign sign;
    int code;                // as listed: warnings too have a positive number here
    std::string_view format; // the message, with "%s", "%c", "%d" and "%%"
};

inline constexpr std::array kProblems = {
#define PROBLEM(name, sign, code, message) ProblemInfo{#name, ProblemSign::sign, code, message},
#include "transcript/problems.def"
#undef PROBLEM
};

constexpr const ProblemInfo& problemInfo(Problem p) {
    return kProblems[static_cast<std::size_t>(p)];
}

// The code an `err` record carries: negative for warnings.
constexpr int errCode(Problem p) {
    const ProblemInfo& info = problemInfo(p);
    return info.sign == ProblemSign::Warning ? -info.code : info.code;
}

// One argument of a message, as the "%" place it fills.
struct ProblemArg {
    char kind; // 's', 'c' or 'd'
    std::string_view text;
    long long number = 0;

    ProblemArg(std::string_view t) : kind('s'), text(t) {}
    ProblemArg(const std::string& t) : kind('s'), text(t) {}
    ProblemArg(const char* t) : kind('s'), text(t) {}
    ProblemArg(char c) : kind('c'), number(c) {}
    ProblemArg(int n) : kind('d'), number(n) {}
    ProblemArg(long long n) : kind('d'), number(n) {}
};

namespace detail {

template <class T> consteval char problemArgKind() {
    using U = std::remove_cvref_t<std::decay_t<T>>;
    if constexpr (std::is_same_v<U, char>)
        return 'c';
    else if constexpr (std::is_same_v<U, int> || std::is_same_v<U, long long>)
        return 'd';
    else if constexpr (std::is_convertible_v<const T&, std::string_view>)
        return 's';
    else
        return '?';
}

// The kinds of the "%" places of a format, in order ("%%" is no place).
consteval bool placesFit(std::string_view format, std::initializer_list<char> kinds) {
    const char* next = kinds.begin();
    for (std::size_t i = 0; i + 1 < format.size(); ++i) {
        if (format[i] != '%')
            continue;
        char c = format[++i];
        if (c == '%')
            continue;
        if (next == kinds.end() || *next != c)
            return false;
        ++next;
    }
    return next == kinds.end();
}

std::string problemText(Problem p, std::initializer_list<ProblemArg> args);

} // namespace detail

// A problem named where it is reported, checked against the arguments given
// with it (the way std::format_string checks a format).
template <class... A> struct BasicProblemRef {
    Problem id;
    consteval BasicProblemRef(Problem p) : id(p) {
        if (!detail::placesFit(problemInfo(p).format, {detail::problemArgKind<A>()...}))
            throw "the arguments do not fit the problem's message";
    }
};

template <class... A> using ProblemRef = BasicProblemRef<std::type_identity_t<A>...>;

// The message of `p` with its places filled.
template <class... A> std::string problemText(ProblemRef<A...> p, const A&... args) {
    return detail::problemText(p.id, {ProblemArg(args)...});
}

} // namespace tavi
