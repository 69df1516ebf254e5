// Validation of comma-separated code lists.
#include "app/code_list_check.h"

#include "base/text.h"

namespace tavi::app {
namespace {

bool isLegalCode(std::string_view code) {
    if (code.empty())
        return false;
    for (size_t i = 0; i < code.size(); ++i) {
        const char c = code[i];
        if (isBlank(c) || c == '[' || c == ']' || c == '{' || c == '}' || c == '(' || c == ')' ||
            c == '<' || c == '>' || c == ',')
            return false;
        if (c == '*' && i + 1 != code.size())
            return false;
    }
    return true;
}

} // namespace

bool isLegalCodeList(std::string_view list) {
    list = trim(list);
    if (list.empty())
        return true;
    size_t start = 0;
    while (true) {
        const size_t comma = list.find(',', start);
        const std::string_view item =
            trim(list.substr(start, comma == std::string_view::npos ? comma : comma - start));
        if (!isLegalCode(item))
            return false;
        if (comma == std::string_view::npos)
            return true;
        start = comma + 1;
    }
}

} // namespace tavi::app
