// Parsing code lists and matching codes against them.
#include "analysis/code_lists.h"

#include "base/text.h"

namespace tavi {

std::vector<std::string> parseCodeItems(std::string_view list) {
    std::vector<std::string> items;
    std::string cur;
    auto flush = [&] {
        std::string_view t = trim(cur);
        if (!t.empty())
            items.emplace_back(t);
        cur.clear();
    };
    for (char c : list) {
        if (c == '[' || c == ']' || c == ',')
            flush();
        else
            cur += c;
    }
    flush();
    return items;
}

bool isValidCodeList(std::string_view list) {
    bool open = false;
    for (char c : list) {
        if (c == '[') {
            if (open)
                return false;
            open = true;
        } else if (c == ']') {
            if (!open)
                return false;
            open = false;
        } else if (c == '@' || c == '=') {
            return false;
        }
    }
    if (open)
        return false;
    for (const std::string& item : parseCodeItems(list))
        for (char c : item)
            if (isBlank(c))
                return false;
    return true;
}

bool codeMatchesItem(std::string_view code, std::string_view item) {
    std::string_view head = code.substr(0, code.find(':'));
    if (!item.empty() && item.back() == '*') {
        std::string_view stem = item.substr(0, item.size() - 1);
        return startsWithIgnoreCase(head, stem);
    }
    return equalsIgnoreCase(head, item);
}

bool CodeMatcher::matches(std::string_view code) const {
    for (const std::string& item : items_)
        if (codeMatchesItem(code, item))
            return true;
    return false;
}

} // namespace tavi
