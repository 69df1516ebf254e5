// Parsing of the "$" speaker label line.
#include "transcript/speaker_line.h"

#include <algorithm>

#include "base/text.h"
#include "transcript/case_folding.h"
#include "transcript/char_class.h"

namespace tavi {

namespace {

constexpr size_t kMaxFirstLetters = 80;

// Groups at commas; without a comma the first blank between labels is one.
std::vector<std::string_view> splitGroups(std::string_view text) {
    text = trim(text);
    std::vector<std::string_view> groups;
    if (text.find(',') == std::string_view::npos) {
        size_t blank = 0;
        while (blank < text.size() && !isBlank(text[blank]))
            ++blank;
        groups.push_back(text.substr(0, blank));
        if (blank < text.size())
            groups.push_back(text.substr(blank + 1));
        return groups;
    }
    size_t start = 0;
    while (true) {
        size_t comma = text.find(',', start);
        groups.push_back(text.substr(start, comma - start));
        if (comma == std::string_view::npos)
            break;
        start = comma + 1;
    }
    return groups;
}

std::vector<std::string_view> splitLabels(std::string_view group) {
    std::vector<std::string_view> labels;
    size_t i = 0;
    while (i < group.size()) {
        while (i < group.size() && isBlank(group[i]))
            ++i;
        size_t start = i;
        while (i < group.size() && !isBlank(group[i]))
            ++i;
        if (i > start)
            labels.push_back(group.substr(start, i - start));
    }
    return labels;
}

char32_t firstCodePoint(std::string_view s) {
    size_t pos = 0;
    return s.empty() ? 0 : nextCodePoint(s, pos);
}

} // namespace

ParsedSpeakerLine parseSpeakerLine(std::string_view text) {
    ParsedSpeakerLine result;
    auto report = [&]<class... A>(ProblemRef<A...> p, const A&... args) {
        result.problems.push_back({p.id, problemText(p, args...)});
    };
    std::vector<std::string_view> groups = splitGroups(text);
    std::vector<char32_t> firstLetters;
    for (size_t g = 0; g < groups.size(); ++g) {
        if (g == 3) {
            report(Problem::TooManySpeakerGroups);
            break;
        }
        std::vector<std::string_view> labels = splitLabels(groups[g]);
        if (labels.empty()) {
            report(Problem::MissingSpeakerLabel);
            continue;
        }
        for (std::string_view label : labels) {
            result.table.groups[g].labels.emplace_back(label);
            char32_t first = firstCodePoint(label);
            if (!cls::isWordChar(first)) {
                report(Problem::SpeakerLabelStart, label);
                continue;
            }
            char32_t folded = foldCase(first);
            if (std::find(firstLetters.begin(), firstLetters.end(), folded) != firstLetters.end()) {
                report(Problem::SpeakerLetterNotUnique, toUtf8(first));
            } else if (firstLetters.size() < kMaxFirstLetters) {
                firstLetters.push_back(folded);
            }
        }
    }
    return result;
}

int speakerGroupOf(const SpeakerTable& table, char32_t id) {
    char32_t folded = foldCase(id);
    for (int g = 0; g < 3; ++g)
        for (const std::string& label : table.groups[g].labels)
            if (foldCase(firstCodePoint(label)) == folded)
                return g;
    return -1;
}

} // namespace tavi
