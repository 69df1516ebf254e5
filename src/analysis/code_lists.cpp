// Parsing code lists and matching codes against them.
#include "analysis/code_lists.h"

#include <algorithm>

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

namespace {

std::string_view trimDescription(std::string_view text) {
    auto separator = [](char c) { return isBlank(c) || c == ',' || c == ';'; };
    while (!text.empty() && separator(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && separator(text.back()))
        text.remove_suffix(1);
    return text;
}

} // namespace

std::vector<DescribedCode> parseDescribedCodes(std::string_view list) {
    std::vector<DescribedCode> codes;
    if (list.find('[') == std::string_view::npos) {
        for (std::string& item : parseCodeItems(list))
            codes.push_back({std::move(item), {}});
        return codes;
    }
    size_t at = 0;
    while (at < list.size()) {
        const size_t open = list.find('[', at);
        if (open == std::string_view::npos)
            break;
        const size_t close = list.find(']', open + 1);
        if (close == std::string_view::npos)
            break;
        const size_t next = std::min(list.find('[', close + 1), list.size());
        std::string_view code = trim(list.substr(open + 1, close - open - 1));
        if (!code.empty())
            codes.push_back({std::string(code), std::string(trimDescription(
                                                    list.substr(close + 1, next - close - 1)))});
        at = next;
    }
    return codes;
}

std::string describedCodeListText(const std::vector<DescribedCode>& codes) {
    std::string text;
    for (const DescribedCode& c : codes) {
        if (c.code.empty())
            continue;
        if (!text.empty() && text.back() != ']')
            text += ' ';
        text += "[" + c.code + "]";
        // A bracket would start another code: it is written as a parenthesis.
        std::string description = c.description;
        std::replace(description.begin(), description.end(), '[', '(');
        std::replace(description.begin(), description.end(), ']', ')');
        if (!description.empty())
            text += " " + description;
    }
    return text;
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

namespace {

char upperAscii(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 32) : c;
}

} // namespace

CodeMatcher::CodeMatcher(std::string_view list) : items_(parseCodeItems(list)) {
    for (const std::string& item : items_) {
        const bool open = !item.empty() && item.back() == '*';
        stems_.push_back({toUpperAscii(open ? item.substr(0, item.size() - 1) : item), open});
    }
}

// codeMatchesItem for each item, the code's head found once and each item
// compared in the upper case it is kept in.
bool CodeMatcher::matches(std::string_view code) const {
    const std::string_view head = code.substr(0, code.find(':'));
    for (const Stem& stem : stems_) {
        if (stem.open ? head.size() < stem.upper.size() : head.size() != stem.upper.size())
            continue;
        size_t at = 0;
        while (at < stem.upper.size() && upperAscii(head[at]) == stem.upper[at])
            ++at;
        if (at == stem.upper.size())
            return true;
    }
    return false;
}

} // namespace tavi
