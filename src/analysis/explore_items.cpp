// Counting named words and codes, and reading "+" line values.
#include "analysis/explore_items.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "analysis/word_forms.h"
#include "base/text.h"

namespace tavi {

namespace {

// `text` matches `pattern` (both lower case); a final "*" matches any ending.
bool matches(std::string_view text, std::string_view pattern) {
    if (pattern.ends_with('*'))
        return text.starts_with(pattern.substr(0, pattern.size() - 1));
    return text == pattern;
}

} // namespace

std::vector<std::string> wordListFileItems(std::string_view text) {
    std::vector<std::string> items;
    for (std::string_view line : splitLines(text)) {
        line = trim(line);
        if (line.empty() || line.front() == ';')
            continue;
        std::size_t at = 0;
        while (at < line.size()) {
            const std::size_t end = std::min(line.find_first_of(" \t,", at), line.size());
            if (end > at)
                items.emplace_back(line.substr(at, end - at));
            at = end + 1;
        }
    }
    return items;
}

bool isCodeItem(std::string_view item) {
    return item.size() >= 2 && item.front() == '[' && item.back() == ']';
}

int countItem(const SegmentedTranscript& transcript, std::span<const int> utterances,
              std::string_view item) {
    const bool code = isCodeItem(item);
    const std::string pattern = toLowerAscii(code ? item.substr(1, item.size() - 2) : item);
    if (pattern.empty())
        return 0;
    int count = 0;
    std::string root, surface;
    for (int index : utterances) {
        const Utterance& u = transcript.utterances[static_cast<std::size_t>(index)];
        if (code) {
            for (const Code& c : u.codes()) {
                const std::string text = toLowerAscii(c.text);
                const std::string_view head = std::string_view(text).substr(0, text.find(':'));
                if (matches(text, pattern) || matches(head, pattern))
                    ++count;
            }
            continue;
        }
        for (const Word& w : u.words) {
            if (!w.isMainBodyWord())
                continue;
            rootKeyInto(w, root);
            surfaceFormInto(w, root, surface);
            if (matches(root, pattern) || matches(surface, pattern))
                ++count;
        }
    }
    return count;
}

std::optional<double> plusLineValue(const SegmentedTranscript& transcript,
                                    std::string_view keyword) {
    const std::string wanted = toLowerAscii(trim(keyword));
    for (const HeaderLine& line : transcript.headers) {
        if (toLowerAscii(line.keyword) != wanted)
            continue;
        const char* start = line.value.c_str();
        char* end = nullptr;
        const double value = std::strtod(start, &end);
        if (end == start || !std::isfinite(value))
            return std::nullopt;
        return value;
    }
    return std::nullopt;
}

std::vector<std::string> numericPlusLines(const SegmentedTranscript& transcript) {
    std::vector<std::string> keywords;
    for (const HeaderLine& line : transcript.headers) {
        const std::string_view value = trim(line.value);
        const std::string text(value);
        char* end = nullptr;
        std::strtod(text.c_str(), &end);
        if (text.empty() || end != text.c_str() + text.size() ||
            !plusLineValue(transcript, line.keyword))
            continue;
        bool seen = false;
        for (const std::string& k : keywords)
            seen = seen || toLowerAscii(k) == toLowerAscii(line.keyword);
        if (!seen)
            keywords.push_back(line.keyword);
    }
    return keywords;
}

} // namespace tavi
