// The grammatical-category dictionary: an open-addressing table of lines.
#include "analysis/gc_dictionary.h"

#include <algorithm>

#include "analysis/grammatical_categories.h"
#include "base/file_io.h"
#include "base/prompter.h"
#include "base/text.h"
#include "transcript/bound_morphemes.h"

namespace tavi {

namespace {

size_t keyLength(std::string_view line) {
    size_t blank = line.find(' ');
    return blank == std::string_view::npos ? 0 : blank;
}

// dictionaryHash of the UTF-16 form of `key`, without building it.
std::int32_t utf8KeyHash(std::string_view key, std::int32_t capacity) {
    std::int32_t h = 0;
    auto add = [&](char32_t unit) { h = (h * 64 + static_cast<std::int32_t>(unit)) % capacity; };
    size_t pos = 0;
    while (pos < key.size()) {
        const auto byte = static_cast<unsigned char>(key[pos]);
        if (byte < 0x80) {
            add(byte);
            ++pos;
            continue;
        }
        char32_t cp = nextCodePoint(key, pos);
        if (cp >= 0x10000) {
            cp -= 0x10000;
            add(static_cast<char16_t>(0xD800 + (cp >> 10)));
            add(static_cast<char16_t>(0xDC00 + (cp & 0x3FF)));
        } else {
            add(static_cast<char16_t>(cp));
        }
    }
    return h;
}

} // namespace

std::int32_t dictionaryHash(std::u16string_view key, std::int32_t capacity) {
    std::int32_t h = 0;
    for (char16_t c : key)
        h = (h * 64 + static_cast<std::int32_t>(c)) % capacity;
    return h;
}

GcDictionary::GcDictionary(std::int32_t capacity)
    : capacity_(capacity), slots_(static_cast<size_t>(capacity)) {}

bool GcDictionary::insert(std::string_view line) {
    size_t keyLen = keyLength(line);
    const std::int32_t start = utf8KeyHash(line.substr(0, keyLen), capacity_);
    std::int32_t i = start;
    while (slots_[i].used) {
        i = (i + 1) % capacity_;
        if (i == start)
            return false;
    }
    slots_[i] = {std::string(line), static_cast<std::uint32_t>(keyLen), true};
    ++size_;
    return true;
}

void GcDictionary::load(std::string_view text, Prompter& prompter) {
    for (std::string_view line : splitLines(text))
        if (!insert(line)) {
            prompter.inform("Increase MAX_DICTIONARY_WORDS");
            return;
        }
}

bool GcDictionary::loadFile(const std::string& path, Prompter& prompter) {
    std::string bytes;
    if (!readFile(path, bytes)) {
        prompter.inform("Unable to open Grammatical Category dictionary file (" + path + ")");
        return false;
    }
    load(decodeText(bytes).utf8, prompter);
    return true;
}

std::optional<std::string_view> GcDictionary::lookup(std::string_view word) const {
    std::int32_t i = utf8KeyHash(word, capacity_);
    for (std::int32_t probes = 0; slots_[i].used && probes < capacity_; ++probes) {
        const Slot& s = slots_[i];
        if (std::string_view(s.line).substr(0, s.keyLength) == word)
            return trim(std::string_view(s.line).substr(s.keyLength));
        i = (i + 1) % capacity_;
    }
    return std::nullopt;
}

bool isSkippedCategoryToken(std::string_view token) {
    if (token.empty())
        return true;
    const char first = token.front();
    if ((first >= 'a' && first <= 'z') || (first >= 'A' && first <= 'Z') ||
        (first >= '0' && first <= '9'))
        return false; // the common case: none of the marks below
    size_t pos = 0;
    char32_t c = nextCodePoint(token, pos);
    static constexpr std::u32string_view kMarks =
        U"=+:;-$@\\/*%|[].!~?>^,\"\u061F\u001C\u001D\uFF93\uFF94"
        U"\u201C\u201D\u00BF\u00A1";
    return kMarks.find(c) != std::u32string_view::npos ||
           (c < 0x80 && isBlank(static_cast<char>(c))) || c == U'\u00A0' || c == U'\u3000';
}

namespace {

std::vector<int> categoriesOfValue(std::string_view value) {
    std::vector<int> cats;
    size_t i = 0;
    while (i < value.size()) {
        while (i < value.size() && isBlank(value[i]))
            ++i;
        size_t start = i;
        while (i < value.size() && !isBlank(value[i]))
            ++i;
        if (auto c = categoryOfCode(value.substr(start, i - start));
            c && std::find(cats.begin(), cats.end(), *c) == cats.end())
            cats.push_back(*c);
    }
    return cats;
}

bool hasEnding(std::string_view s, std::string_view end) {
    return s.size() > end.size() + 1 && s.substr(s.size() - end.size()) == end;
}

std::vector<int> guessFromForm(const Word& w) {
    unsigned groups = 0;
    for (std::string_view m : w.boundMorphemes())
        groups |= 1u << boundMorphemeGroup(m);
    return guessCategories(toLowerAscii(w.root()), groups);
}

} // namespace

std::vector<int> dictionaryCategories(std::string_view root, const GcDictionary& dictionary) {
    root = root.substr(root.rfind('\\') + 1);
    auto value = dictionary.lookup(root);
    // Then in lower case, then capitalised ("i" finds "I").
    std::string other = toLowerAscii(root);
    if (!value && other != root)
        value = dictionary.lookup(other);
    if (!value && !other.empty() && other[0] >= 'a' && other[0] <= 'z') {
        other[0] = static_cast<char>(other[0] - 'a' + 'A');
        if (other != root)
            value = dictionary.lookup(other);
    }
    return value ? categoriesOfValue(*value) : std::vector<int>{};
}

std::vector<int> wordCategories(const Word& w, const GcDictionary* dictionary) {
    if (dictionary)
        if (std::vector<int> cats = dictionaryCategories(w.root(), *dictionary); !cats.empty())
            return cats;
    return guessFromForm(w);
}

std::vector<int> guessCategories(std::string_view r, unsigned groups) {
    constexpr unsigned kVerbEndings =
        1u << 2 | 1u << 3 | 1u << 4 | 1u << 5; // "/ED" "/EN" "/3S" "/ING"
    if (groups & kVerbEndings)
        return {GcVerb};
    if (hasEnding(r, "ly"))
        return {GcAverb};
    if (hasEnding(r, "ing") || hasEnding(r, "ed"))
        return {GcVerb};
    return {GcNoun};
}

std::vector<int> guessCategories(const Word& w) {
    return guessFromForm(w);
}

} // namespace tavi
