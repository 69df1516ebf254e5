// Filling the "%" places of a problem's message.
#include "transcript/problems.h"

namespace tavi::detail {

namespace {

// Every "%" of a message is "%s", "%c", "%d" or "%%".
consteval bool placesAreKnown() {
    for (const ProblemInfo& p : kProblems)
        for (std::size_t i = 0; i < p.format.size(); ++i)
            if (p.format[i] == '%') {
                if (++i == p.format.size())
                    return false;
                char c = p.format[i];
                if (c != 's' && c != 'c' && c != 'd' && c != '%')
                    return false;
            }
    return true;
}

// No problem is listed twice (same sign, code and message).
consteval bool entriesAreDistinct() {
    for (std::size_t i = 0; i < kProblems.size(); ++i)
        for (std::size_t j = i + 1; j < kProblems.size(); ++j)
            if (kProblems[i].sign == kProblems[j].sign && kProblems[i].code == kProblems[j].code &&
                kProblems[i].format == kProblems[j].format)
                return false;
    return true;
}

static_assert(placesAreKnown(), "a problem message has an unknown % place");
static_assert(entriesAreDistinct(), "a problem is listed twice in problems.def");

} // namespace

std::string problemText(Problem p, std::initializer_list<ProblemArg> args) {
    std::string_view format = problemInfo(p).format;
    std::string text;
    text.reserve(format.size() + 16);
    const ProblemArg* next = args.begin();
    for (std::size_t i = 0; i < format.size(); ++i) {
        char c = format[i];
        if (c != '%' || i + 1 == format.size()) {
            text += c;
            continue;
        }
        char place = format[++i];
        if (place == '%' || next == args.end()) {
            text += '%';
            continue;
        }
        const ProblemArg& arg = *next++;
        if (arg.kind == 's')
            text += arg.text;
        else if (arg.kind == 'c')
            text += static_cast<char>(arg.number);
        else
            text += std::to_string(arg.number);
    }
    return text;
}

} // namespace tavi::detail
