// Filling the "%" places of a problem's message.
#include "transcript/problems.h"

namespace tavi::detail {

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
