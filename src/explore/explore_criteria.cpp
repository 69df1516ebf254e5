// Explore criteria: names, item matching and their settings lines.
#include "explore/explore_criteria.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "base/format.h"
#include "base/text.h"

namespace tavi {

namespace {

constexpr std::array<std::string_view, kExploreTypes> kTypeNames = {
    "statement",           "exclamation", "question",    "prompt",    "abandoned", "interrupted",
    "resp-question",       "resp-yes-no", "resp-prompt", "imitation", "one-word",  "unintelligible",
    "partly-intelligible", "nonverbal",   "maze",        "pause",     "omission"};

bool isCodeItem(std::string_view item) {
    return item.size() >= 2 && item.front() == '[' && item.back() == ']';
}

int readNumber(std::string_view text, int fallback) {
    text = trim(text);
    int n = 0;
    auto r = std::from_chars(text.data(), text.data() + text.size(), n);
    return r.ec == std::errc() ? n : fallback;
}

const char* yesNo(bool on) {
    return on ? "_YES" : "_NO";
}

// Compares without regard to ASCII case.
bool sameLetters(std::string_view a, std::string_view b) {
    return equalsIgnoreCase(a, b);
}

} // namespace

std::string_view exploreTypeName(ExploreType type) {
    return kTypeNames[static_cast<size_t>(type)];
}

std::optional<ExploreType> exploreTypeByName(std::string_view name) {
    for (size_t i = 0; i < kTypeNames.size(); ++i)
        if (equalsIgnoreCase(kTypeNames[i], name))
            return static_cast<ExploreType>(i);
    return std::nullopt;
}

std::vector<std::string> ExploreCriteria::wordItems() const {
    std::vector<std::string> words;
    for (const std::string& item : items)
        if (!isCodeItem(item))
            words.push_back(item);
    return words;
}

std::vector<std::string> ExploreCriteria::codeItems() const {
    std::vector<std::string> codes;
    for (const std::string& item : items)
        if (isCodeItem(item))
            codes.push_back(item.substr(1, item.size() - 2));
    return codes;
}

int ExploreCriteria::criterionCount() const {
    return static_cast<int>(types.size()) + (hasLength() ? 1 : 0) + (wordItems().empty() ? 0 : 1) +
           (codeItems().empty() ? 0 : 1);
}

bool exploreItemMatches(std::string_view item, std::string_view text) {
    bool anyStart = !item.empty() && item.front() == '*';
    if (anyStart)
        item.remove_prefix(1);
    bool anyEnd = !item.empty() && item.back() == '*';
    if (anyEnd)
        item.remove_suffix(1);
    if (item.empty())
        return anyStart || anyEnd;
    if (!anyStart && !anyEnd)
        return sameLetters(item, text);
    if (text.size() < item.size())
        return false;
    if (anyStart && anyEnd) {
        for (size_t at = 0; at + item.size() <= text.size(); ++at)
            if (sameLetters(item, text.substr(at, item.size())))
                return true;
        return false;
    }
    if (anyEnd)
        return sameLetters(item, text.substr(0, item.size()));
    return sameLetters(item, text.substr(text.size() - item.size()));
}

std::vector<std::string> exploreCriteriaLines(std::string_view keyword, const ExploreCriteria& c) {
    const std::string k(keyword);
    std::vector<std::string> lines;
    if (c.speaker == ExploreSpeaker::Either)
        lines.push_back(k + " EITHER");
    else
        lines.push_back(k + (c.speaker == ExploreSpeaker::Second ? " LINK2ND" : " LINK1ST"));
    const char* utterances[] = {" TOTAL", " ASET", " NONASET"};
    lines.push_back(k + utterances[static_cast<int>(c.utterances)]);
    const char* areas[] = {" MBODY", " MAZE", " MBMAZE"};
    lines.push_back(k + areas[static_cast<int>(c.area)]);
    const char* roots[] = {" RIDPROD", " RIDIDEN", " RIDEITHER"};
    lines.push_back(k + roots[static_cast<int>(c.roots)]);
    const char* codes[] = {" WCODE", " UCODE", " WORDUTT"};
    lines.push_back(k + codes[static_cast<int>(c.codes)]);
    lines.push_back(k + (c.all ? " WBSUT_AND" : " WBSUT_OR"));
    lines.push_back(k + " WBSUT_NOT" + yesNo(c.negate));
    lines.push_back(k + " MZFP" + yesNo(c.mazeFilledPauses));
    lines.push_back(k + " MZREP" + yesNo(c.mazeRepetitions));
    lines.push_back(k + " MZREV" + yesNo(c.mazeRevisions));
    for (ExploreType t : c.types)
        lines.push_back(format("%s WBSUT %d", k.c_str(), static_cast<int>(t)));
    lines.push_back(format("%s WBLENFROM %d", k.c_str(), c.lengthFrom));
    lines.push_back(format("%s WBLENTO %d", k.c_str(), c.lengthTo));
    lines.push_back(k + (c.lengthInMorphemes ? " WB_MRPHLEN" : " WB_WDLEN"));
    return lines;
}

std::vector<std::string> exploreItemLines(std::string_view listKeyword, const ExploreCriteria& c) {
    std::vector<std::string> lines;
    for (const std::string& item : c.items)
        lines.push_back(std::string(listKeyword) + " " + item);
    return lines;
}

void applyExploreCriteriaLine(const KeywordLine& line, ExploreCriteria& c) {
    const std::string key = toUpperAscii(line.subKey);
    auto flag = [&](std::string_view name, bool& target) {
        if (key == std::string(name) + "_YES")
            target = true;
        else if (key == std::string(name) + "_NO")
            target = false;
        else
            return false;
        return true;
    };
    if (key == "EITHER" || key == "LINKEITHER")
        c.speaker = ExploreSpeaker::Either;
    else if (key == "LINK1ST")
        c.speaker = ExploreSpeaker::First;
    else if (key == "LINK2ND")
        c.speaker = ExploreSpeaker::Second;
    else if (key == "TOTAL")
        c.utterances = ExploreUtterances::Total;
    else if (key == "ASET")
        c.utterances = ExploreUtterances::AnalysisSet;
    else if (key == "NONASET")
        c.utterances = ExploreUtterances::NonAnalysisSet;
    else if (key == "MBODY")
        c.area = ExploreArea::MainBody;
    else if (key == "MAZE" || key == "ONEMAZE")
        c.area = ExploreArea::Mazes;
    else if (key == "MBMAZE")
        c.area = ExploreArea::Both;
    else if (key == "RIDPROD")
        c.roots = ExploreRoots::Produced;
    else if (key == "RIDIDEN")
        c.roots = ExploreRoots::Identified;
    else if (key == "RIDEITHER")
        c.roots = ExploreRoots::Either;
    else if (key == "WCODE")
        c.codes = ExploreCodes::Word;
    else if (key == "UCODE")
        c.codes = ExploreCodes::Utterance;
    else if (key == "WORDUTT")
        c.codes = ExploreCodes::Either;
    else if (key == "WBSUT_AND" || key == "WBSUT_OR")
        c.all = key == "WBSUT_AND";
    else if (flag("WBSUT_NOT", c.negate) || flag("MZFP", c.mazeFilledPauses) ||
             flag("MZREP", c.mazeRepetitions) || flag("MZREV", c.mazeRevisions))
        return;
    else if (key == "WBSUT") {
        int n = readNumber(line.rest, -1);
        if (n >= 0 && n < kExploreTypes)
            c.types.insert(static_cast<ExploreType>(n));
    } else if (key == "WBLENFROM")
        c.lengthFrom = std::max(0, readNumber(line.rest, 0));
    else if (key == "WBLENTO")
        c.lengthTo = std::max(0, readNumber(line.rest, 0));
    else if (key == "WB_MRPHLEN" || key == "WB_WDLEN")
        c.lengthInMorphemes = key == "WB_MRPHLEN";
}

void applyExploreItemLine(const KeywordLine& line, ExploreCriteria& c) {
    std::string_view item = trim(line.value);
    if (!item.empty())
        c.items.emplace_back(item);
}

std::string exploreListKeyword(std::string_view keyword) {
    return equalsIgnoreCase(keyword, "EMULT") ? "EMULTLIST" : "YOLIST";
}

std::vector<std::string> parseWordListFile(std::string_view text) {
    std::vector<std::string> items;
    for (std::string_view line : splitLines(text)) {
        line = trim(line);
        if (line.size() >= 3 && static_cast<unsigned char>(line[0]) == 0xEF &&
            static_cast<unsigned char>(line[1]) == 0xBB &&
            static_cast<unsigned char>(line[2]) == 0xBF)
            line = trim(line.substr(3));
        if (line.empty() || line.front() == ';')
            continue;
        items.emplace_back(line);
    }
    return items;
}

std::string wordListFileText(const std::vector<std::string>& items) {
    std::string text;
    for (const std::string& item : items)
        text += item + "\n";
    return text;
}

} // namespace tavi
