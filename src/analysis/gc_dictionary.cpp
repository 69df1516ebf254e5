// The grammatical-category dictionary: an open-addressing table of lines.
#include "analysis/gc_dictionary.h"

#include <algorithm>
#include <cstring>

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

// The UTF-16 code units of `key`, without building its UTF-16 form.
template <class Add> void forEachUtf16Unit(std::string_view key, Add add) {
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
}

// Capacities below this size take the remainder only after every few code
// units: the hash is the key's units as digits of base 64 modulo the
// capacity, and the remainder taken after each unit equals the one taken at
// the end. From below the capacity, six units (16 bits each) keep the number
// below 2^63.
constexpr std::int32_t kDeferredLimit = std::int32_t{1} << 24;
constexpr int kUnitsPerRemainder = 6;

// Splits `text` as splitLines does (at LF, CR LF or a lone CR; a final line
// end starts no other line) and hands each line to `line`, which returns
// false to stop.
template <class Line> void forEachLine(std::string_view text, Line line) {
    const char* p = text.data();
    const char* const end = p + text.size();
    while (p < end) {
        const auto* nl =
            static_cast<const char*>(std::memchr(p, '\n', static_cast<size_t>(end - p)));
        const char* stop = nl ? nl : end;
        const auto* cr =
            static_cast<const char*>(std::memchr(p, '\r', static_cast<size_t>(stop - p)));
        if (cr) {
            if (!line(std::string_view(p, static_cast<size_t>(cr - p))))
                return;
            p = cr + 1 < end && cr[1] == '\n' ? cr + 2 : cr + 1;
            continue;
        }
        if (!line(std::string_view(p, static_cast<size_t>(stop - p))))
            return;
        p = nl ? nl + 1 : end;
    }
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

std::int32_t dictionaryHash(std::string_view key, std::int32_t capacity) {
    if (capacity > 0 && capacity < kDeferredLimit) {
        const auto d = static_cast<std::uint64_t>(capacity);
        std::uint64_t h = 0;
        int pending = 0;
        forEachUtf16Unit(key, [&](char16_t unit) {
            h = h * 64 + unit;
            if (++pending == kUnitsPerRemainder) {
                h %= d;
                pending = 0;
            }
        });
        return static_cast<std::int32_t>(h % d);
    }
    std::int32_t h = 0;
    forEachUtf16Unit(
        key, [&](char16_t unit) { h = (h * 64 + static_cast<std::int32_t>(unit)) % capacity; });
    return h;
}

std::uint32_t GcDictionary::hashOf(std::string_view key) const {
    return static_cast<std::uint32_t>(dictionaryHash(key, capacity_));
}

std::int32_t GcDictionary::freeSlot(std::string_view key) const {
    const auto start = static_cast<std::int32_t>(hashOf(key));
    std::int32_t i = start;
    while (slots_[i].used()) {
        i = i + 1 == capacity_ ? 0 : i + 1;
        if (i == start)
            return -1;
    }
    return i;
}

void GcDictionary::place(std::int32_t slot, size_t from, std::string_view line) {
    slots_[slot] = {static_cast<std::uint32_t>(from), static_cast<std::uint32_t>(line.size()),
                    static_cast<std::uint32_t>(keyLength(line))};
    ++size_;
}

bool GcDictionary::insert(std::string_view line) {
    if (lines_.size() + line.size() >= kUnused)
        return false; // lines are placed by 32-bit offsets
    const std::int32_t slot = freeSlot(line.substr(0, keyLength(line)));
    if (slot < 0)
        return false;
    const size_t from = lines_.size();
    lines_.append(line);
    place(slot, from, line);
    return true;
}

void GcDictionary::load(std::string_view text, Prompter& prompter) {
    loadText(std::string(text), prompter);
}

// A dictionary with no lines yet takes `text` as its lines, which then stay
// where they are, uncopied; otherwise each line is appended.
void GcDictionary::loadText(std::string text, Prompter& prompter) {
    const bool adopt = lines_.empty() && text.size() < kUnused;
    if (adopt)
        lines_ = std::move(text);
    const std::string_view all = adopt ? std::string_view(lines_) : std::string_view(text);
    forEachLine(all, [&](std::string_view line) {
        if (adopt) {
            if (const std::int32_t slot = freeSlot(line.substr(0, keyLength(line))); slot >= 0) {
                place(slot, static_cast<size_t>(line.data() - lines_.data()), line);
                return true;
            }
        } else if (insert(line)) {
            return true;
        }
        prompter.inform("Increase MAX_DICTIONARY_WORDS");
        return false;
    });
}

bool GcDictionary::loadFile(const std::string& path, Prompter& prompter) {
    std::string bytes;
    if (!readFile(path, bytes)) {
        prompter.inform("Unable to open Grammatical Category dictionary file (" + path + ")");
        return false;
    }
    std::string text = std::move(decodeText(bytes).utf8);
    bytes = std::string();
    loadText(std::move(text), prompter);
    return true;
}

std::optional<std::string_view> GcDictionary::lookup(std::string_view word) const {
    std::int32_t i = static_cast<std::int32_t>(hashOf(word));
    for (std::int32_t probes = 0; slots_[i].used() && probes < capacity_; ++probes) {
        const std::string_view line = lineOf(slots_[i]);
        const std::uint32_t key = slots_[i].keyLength;
        if (line.substr(0, key) == word)
            return trim(line.substr(key));
        i = i + 1 == capacity_ ? 0 : i + 1;
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
