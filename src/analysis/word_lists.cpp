// Reading the standard word list file and matching words against the lists.
#include "analysis/word_lists.h"

#include <algorithm>
#include <functional>

#include "base/file_io.h"
#include "base/prompter.h"
#include "base/text.h"

namespace tavi {

namespace {

// The set and kind of a key such as "P_QUES"; false for any other text.
bool parseKey(std::string_view key, int& set, int& kind) {
    for (int s = 0; s < 4; ++s) {
        std::string_view prefix = kWordListSetPrefixes[s];
        if (key.substr(0, prefix.size()) != prefix)
            continue;
        std::string_view suffix = key.substr(prefix.size());
        for (int k = 0; k < 20; ++k)
            if (suffix == kStandardWordLists[k].suffix) {
                set = s;
                kind = k;
                return true;
            }
    }
    return false;
}

std::vector<std::string> tokens(std::string_view text) {
    std::vector<std::string> out;
    size_t i = 0;
    while (i < text.size()) {
        while (i < text.size() && isBlank(text[i]))
            ++i;
        size_t start = i;
        while (i < text.size() && !isBlank(text[i]))
            ++i;
        if (i > start)
            out.push_back(toLowerAscii(text.substr(start, i - start)));
    }
    return out;
}

} // namespace

bool wordMatchesPattern(std::string_view word, std::string_view pattern) {
    if (!pattern.empty() && pattern.back() == '*') {
        pattern.remove_suffix(1);
        return word.size() >= pattern.size() && word.substr(0, pattern.size()) == pattern;
    }
    return word == pattern;
}

StandardWordLists StandardWordLists::parse(std::string_view text) {
    StandardWordLists lists;
    for (std::string_view raw : splitLines(text)) {
        std::string_view line = trim(raw);
        size_t blank = line.find_first_of(" \t");
        if (blank == std::string_view::npos)
            continue;
        int set = 0, kind = 0;
        if (!parseKey(line.substr(0, blank), set, kind))
            continue;
        std::vector<std::string> words = tokens(line.substr(blank));
        if (words.empty())
            continue;
        WordListEntry entry;
        if (words.front() == "$")
            entry.words.assign(words.begin() + 1, words.end());
        else
            entry.words = {words.front()}; // the rest of the line is a remark
        if (!entry.words.empty())
            lists.add(set, kind, std::move(entry));
    }
    lists.sortIndex();
    return lists;
}

StandardWordLists StandardWordLists::load(const std::string& path, Prompter& prompter, bool* ok) {
    std::string bytes;
    bool read = readFile(path, bytes);
    if (ok)
        *ok = read;
    if (!read) {
        prompter.inform("Unable to open standard word list file (" + path + ")");
        return {};
    }
    return parse(decodeText(bytes).utf8);
}

void StandardWordLists::add(int set, int kind, WordListEntry entry) {
    Index& ix = index_[set];
    if (entry.words.size() > 1)
        ix.phrases.emplace_back(kind, entry);
    else if (entry.words[0].size() > 1 && entry.words[0].back() == '*') {
        ix.prefixes.emplace_back(entry.words[0].substr(0, entry.words[0].size() - 1), kind);
        ix.prefixesOf[kind].push_back(ix.prefixes.back().first);
    } else {
        ix.exact.emplace_back(entry.words[0], kind);
        ix.exactOf[kind].push_back(entry.words[0]);
    }
    lists_[set][kind].push_back(std::move(entry));
}

void StandardWordLists::sortIndex() {
    for (Index& ix : index_) {
        std::sort(ix.exact.begin(), ix.exact.end());
        ix.exact.erase(std::unique(ix.exact.begin(), ix.exact.end()), ix.exact.end());
        for (std::vector<std::string>& words : ix.exactOf) {
            std::sort(words.begin(), words.end());
            words.erase(std::unique(words.begin(), words.end()), words.end());
        }
    }
}

std::vector<int> StandardWordLists::kindsOf(int set, std::string_view word) const {
    std::vector<int> kinds;
    const Index& ix = index_[set];
    auto it = std::lower_bound(ix.exact.begin(), ix.exact.end(), word,
                               [](const auto& e, std::string_view w) { return e.first < w; });
    for (; it != ix.exact.end() && it->first == word; ++it)
        kinds.push_back(it->second);
    for (const auto& [prefix, kind] : ix.prefixes)
        if (word.substr(0, prefix.size()) == prefix)
            kinds.push_back(kind);
    std::sort(kinds.begin(), kinds.end());
    kinds.erase(std::unique(kinds.begin(), kinds.end()), kinds.end());
    return kinds;
}

std::uint32_t StandardWordLists::kindMask(int set, std::string_view word) const {
    std::uint32_t mask = 0;
    const Index& ix = index_[set];
    auto it = std::lower_bound(ix.exact.begin(), ix.exact.end(), word,
                               [](const auto& e, std::string_view w) { return e.first < w; });
    for (; it != ix.exact.end() && it->first == word; ++it)
        mask |= 1u << it->second;
    for (const auto& [prefix, kind] : ix.prefixes)
        if (word.substr(0, prefix.size()) == prefix)
            mask |= 1u << kind;
    return mask;
}

bool StandardWordLists::contains(int set, int kind, std::string_view word) const {
    if (kind < 0 || kind >= static_cast<int>(kStandardWordLists.size()))
        return false; // no entry has such a kind
    const Index& ix = index_[set];
    const std::vector<std::string>& exact = ix.exactOf[kind];
    if (std::binary_search(exact.begin(), exact.end(), word, std::less<>()))
        return true;
    for (const std::string& prefix : ix.prefixesOf[kind])
        if (word.substr(0, prefix.size()) == prefix)
            return true;
    return false;
}

} // namespace tavi
