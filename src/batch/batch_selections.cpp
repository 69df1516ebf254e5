// Selection lines: written in the fixed order of the selection file and read
// back keyword by keyword, so a file written here reads back to the same record.
#include "batch/batch_selections.h"

#include <charconv>

#include "base/format.h"
#include "base/text.h"
#include "batch/variable_catalogue.h"

namespace tavi {

namespace {

std::optional<int> wholeNumber(std::string_view text) {
    text = trim(text);
    if (!text.empty() && text.front() == '+')
        text.remove_prefix(1);
    int n = 0;
    auto [end, ec] = std::from_chars(text.data(), text.data() + text.size(), n);
    if (text.empty() || ec != std::errc() || end != text.data() + text.size())
        return std::nullopt;
    return n;
}

bool isNumeric(std::string_view text) {
    text = trim(text);
    size_t i = 0;
    if (i < text.size() && (text[i] == '+' || text[i] == '-'))
        ++i;
    size_t digits = 0;
    while (i < text.size() && text[i] >= '0' && text[i] <= '9')
        ++i, ++digits;
    if (i < text.size() && text[i] == '.') {
        ++i;
        while (i < text.size() && text[i] >= '0' && text[i] <= '9')
            ++i, ++digits;
    }
    if (digits == 0)
        return false;
    if (i < text.size() && (text[i] == 'e' || text[i] == 'E')) {
        ++i;
        if (i < text.size() && (text[i] == '+' || text[i] == '-'))
            ++i;
        size_t exponent = 0;
        while (i < text.size() && text[i] >= '0' && text[i] <= '9')
            ++i, ++exponent;
        if (exponent == 0)
            return false;
    }
    return i == text.size();
}

// The head of a text up to its first blank, and the rest trimmed on the left.
std::pair<std::string_view, std::string_view> splitFirst(std::string_view text) {
    size_t blank = 0;
    while (blank < text.size() && !isBlank(text[blank]))
        ++blank;
    return {text.substr(0, blank), trimLeft(text.substr(blank))};
}

struct ExploreFlag {
    const char* key;
    bool ExploreOptions::*flag;
};
constexpr ExploreFlag kExploreFlags[] = {
    {"EXPLSELUTTS", &ExploreOptions::selectedUtterances},
    {"EXPLNUMOCC", &ExploreOptions::occurrences},
    {"EXPLNUMUTT", &ExploreOptions::utterances},
    {"EXPLDIFFFORM", &ExploreOptions::differentForms},
    {"EXPLDIFFWORD", &ExploreOptions::differentWords},
    {"EXPLPRESENCE", &ExploreOptions::presence},
    {"EXPLMENTIONEDFIRST", &ExploreOptions::mentionedFirst},
};

struct ExploreChoice {
    const char* key;
    int ExploreOptions::*value;
};
constexpr ExploreChoice kExploreChoices[] = {
    {"EXPLUTT", &ExploreOptions::utteranceChoice},
    {"EXPLAREA", &ExploreOptions::areaChoice},
    {"EXPLRID", &ExploreOptions::rootIdChoice},
    {"EXPLCODETYPE", &ExploreOptions::codeTypeChoice},
    {"WBLENFROM", &ExploreOptions::lengthFrom},
    {"WBLENTO", &ExploreOptions::lengthTo},
};

constexpr ExploreFlag kMazeFlags[] = {
    {"MZFP", &ExploreOptions::mazeFilledPauses},
    {"MZREP", &ExploreOptions::mazeRepetitions},
    {"MZREV", &ExploreOptions::mazeRevisions},
};

const char* yesNo(bool flag) {
    return flag ? "_YES" : "_NO";
}

void appendExploreLines(const ExploreOptions& e, std::vector<std::string>& lines) {
    for (const ExploreFlag& f : kExploreFlags)
        lines.push_back(std::string(f.key) + yesNo(e.*f.flag));
    for (const ExploreChoice& c : kExploreChoices) {
        if (std::string_view(c.key).starts_with("WB"))
            continue;
        lines.push_back(format("%s %d", c.key, e.*c.value));
    }
    lines.push_back(e.wordBaseAnd ? "WBSUT_AND" : "WBSUT_OR");
    lines.push_back(std::string("WBSUT_NOT") + yesNo(e.wordBaseNot));
    for (const ExploreFlag& f : kMazeFlags)
        lines.push_back(std::string("WBSUT ") + f.key + yesNo(e.*f.flag));
    for (int choice : e.wordBaseChoices)
        lines.push_back(format("WBSUT %d", choice));
    lines.push_back(format("WBLENFROM %d", e.lengthFrom));
    lines.push_back(format("WBLENTO %d", e.lengthTo));
    lines.push_back(e.lengthInMorphemes ? "WB_MRPHLEN" : "WB_WDLEN");
    for (const ExploreEntry& entry : e.wordList)
        lines.push_back((entry.speakerCode ? "EXPLLIST $ " : "EXPLLIST ") + entry.text);
}

// "EXPLNUMOCC_YES" and the like: true when the keyword is one of the pairs.
bool applyExploreFlag(ExploreOptions& e, std::string_view keyword) {
    for (const ExploreFlag& f : kExploreFlags) {
        std::string key = f.key;
        if (equalsIgnoreCase(keyword, key + "_YES") || equalsIgnoreCase(keyword, key + "_NO")) {
            e.*f.flag = equalsIgnoreCase(keyword, key + "_YES");
            return true;
        }
    }
    return false;
}

// The value of a "WBSUT" line: a maze flag ("MZFP_YES") or a choice number.
void applyWordBaseSubset(ExploreOptions& e, std::string_view value) {
    for (const ExploreFlag& f : kMazeFlags) {
        std::string key = f.key;
        if (equalsIgnoreCase(value, key + "_YES") || equalsIgnoreCase(value, key + "_NO")) {
            e.*f.flag = equalsIgnoreCase(value, key + "_YES");
            return;
        }
    }
    if (std::optional<int> n = wholeNumber(value))
        e.wordBaseChoices.insert(*n);
}

bool applyExploreLine(ExploreOptions& e, std::string_view keyword, std::string_view value) {
    if (applyExploreFlag(e, keyword))
        return true;
    for (const ExploreChoice& c : kExploreChoices) {
        if (equalsIgnoreCase(keyword, c.key)) {
            if (std::optional<int> n = wholeNumber(value))
                e.*c.value = *n;
            return true;
        }
    }
    if (equalsIgnoreCase(keyword, "WBSUT_OR") || equalsIgnoreCase(keyword, "WBSUT_AND"))
        e.wordBaseAnd = equalsIgnoreCase(keyword, "WBSUT_AND");
    else if (equalsIgnoreCase(keyword, "WBSUT_NOT_YES") ||
             equalsIgnoreCase(keyword, "WBSUT_NOT_NO"))
        e.wordBaseNot = equalsIgnoreCase(keyword, "WBSUT_NOT_YES");
    else if (equalsIgnoreCase(keyword, "WBSUT"))
        applyWordBaseSubset(e, value);
    else if (equalsIgnoreCase(keyword, "WB_WDLEN") || equalsIgnoreCase(keyword, "WB_MRPHLEN"))
        e.lengthInMorphemes = equalsIgnoreCase(keyword, "WB_MRPHLEN");
    else if (equalsIgnoreCase(keyword, "EXPLLIST")) {
        if (value.empty())
            return true;
        auto [head, rest] = splitFirst(value);
        if (head == "$")
            e.wordList.push_back({true, std::string(rest)});
        else
            e.wordList.push_back({false, std::string(value)});
    } else
        return false;
    return true;
}

template <size_t N> void setFlag(std::array<bool, N>& flags, std::string_view value) {
    std::optional<int> n = wholeNumber(value);
    if (n && *n >= 0 && *n < static_cast<int>(N))
        flags[static_cast<size_t>(*n)] = true;
}

} // namespace

BatchSelections BatchSelections::empty() {
    BatchSelections s;
    s.speaker = kBothSpeakers;
    s.missingText.clear();
    s.missingInteger.clear();
    s.missingDecimal.clear();
    s.general.fill(false);
    return s;
}

const std::vector<std::string_view>& selectionGroupKeywords() {
    static const std::vector<std::string_view> keywords = {
        "SMR",      "UTTYPE",  "SYNSMRY",    "UTTDIST",  "UDLENGTH",  "UDUTT",    "SEMSMRY",
        "DCSMRY",   "TURNLEN", "VFSMRY",     "MZCDSMRY", "FORMATRPT", "SWL",      "SWLUTT",
        "SWLAREA",  "SWLLANG", "SUL",        "SULUTT",   "MZDIST",    "MDLENGTH", "MDUTT",
        "OMITERR",  "FLUENCY", "FLUENCYBEH", "NMFORM",   "CSCODE",    "SI",       "MACROSTRUCT",
        "COMPQUES", "GCL",     "GCLUTT",
    };
    return keywords;
}

std::vector<std::string> selectionLines(const BatchSelections& s) {
    std::vector<std::string> lines;
    if (s.speaker == BatchSelections::kTargetSpeaker)
        lines.push_back("SPEAKER 1ST");
    else if (s.speaker == BatchSelections::kOtherSpeaker)
        lines.push_back("SPEAKER 2ND");
    if (!s.missingText.empty())
        lines.push_back("XTEXT " + s.missingText);
    if (!s.missingInteger.empty())
        lines.push_back("XINT " + s.missingInteger);
    if (!s.missingDecimal.empty())
        lines.push_back("XVAL " + s.missingDecimal);
    for (size_t i = 0; i < s.general.size(); ++i)
        if (s.general[i])
            lines.push_back(format("GENINFO %d", static_cast<int>(i)));
    for (size_t i = 0; i < s.plusLines.size(); ++i)
        if (s.plusLines[i])
            lines.push_back(format("PLUSLINE %d", static_cast<int>(i)));
    for (const std::string& line : s.plusList)
        lines.push_back("PLUSLIST " + line);
    for (std::string_view keyword : selectionGroupKeywords()) {
        auto it = s.groups.find(std::string(keyword));
        if (it == s.groups.end())
            continue;
        for (int index : it->second)
            lines.push_back(std::string(keyword) + format(" %d", index));
    }
    appendExploreLines(s.explore, lines);
    return lines;
}

std::vector<std::string> batchSectionLines(const BatchSelections& s) {
    std::vector<std::string> lines = selectionLines(s);
    for (std::string& line : lines)
        line.insert(0, "BATCH ");
    return lines;
}

void applySelectionLine(BatchSelections& s, std::string_view keyword, std::string_view value) {
    value = trim(value);
    if (equalsIgnoreCase(keyword, "SPEAKER")) {
        if (equalsIgnoreCase(value, "1ST"))
            s.speaker = BatchSelections::kTargetSpeaker;
        else if (equalsIgnoreCase(value, "2ND"))
            s.speaker = BatchSelections::kOtherSpeaker;
    } else if (equalsIgnoreCase(keyword, "XTEXT")) {
        s.missingText = value;
    } else if (equalsIgnoreCase(keyword, "XINT")) {
        s.missingInteger = value;
    } else if (equalsIgnoreCase(keyword, "XVAL")) {
        s.missingDecimal = value;
    } else if (equalsIgnoreCase(keyword, "GENINFO")) {
        setFlag(s.general, value);
    } else if (equalsIgnoreCase(keyword, "PLUSLINE")) {
        setFlag(s.plusLines, value);
    } else if (equalsIgnoreCase(keyword, "PLUSLIST")) {
        if (!value.empty())
            s.plusList.emplace_back(value);
    } else if (applyExploreLine(s.explore, keyword, value)) {
    } else {
        for (std::string_view group : selectionGroupKeywords()) {
            if (!equalsIgnoreCase(keyword, group))
                continue;
            if (std::optional<int> n = wholeNumber(value); n && *n >= 0)
                s.groups[std::string(group)].insert(*n);
            return;
        }
    }
}

std::optional<MissingValueProblem> validateMissingValues(const BatchSelections& s) {
    using P = MissingValueProblem;
    if (trim(s.missingText).empty())
        return P{P::Text, "'Missing text value' cannot be blank"};
    if (trim(s.missingInteger).empty())
        return P{P::Integer, "'Missing integer value' cannot be blank"};
    if (!wholeNumber(s.missingInteger))
        return P{P::Integer, "'Missing integer value' must be a whole number (not a decimal)"};
    if (trim(s.missingDecimal).empty())
        return P{P::Decimal, "'Missing decimal value' cannot be blank"};
    if (!isNumeric(s.missingDecimal))
        return P{P::Decimal, "'Missing decimal value' must be numeric"};
    return std::nullopt;
}

int selectionIndex(const VariableCatalogue& c, int index) {
    const VariableGroup& group = c.groupOf(index);
    int before = 0;
    for (const VariableGroup& g : c.groups()) {
        if (&g == &group)
            break;
        if (g.keyword == group.keyword)
            before += g.count;
    }
    return before + c.variable(index).indexInGroup;
}

std::vector<int> chosenVariables(const BatchSelections& s, const VariableCatalogue& c) {
    std::vector<int> chosen;
    for (const VariableGroup& g : c.groups()) {
        for (int i = 0; i < g.count; ++i) {
            bool on = false;
            if (g.keyword == "GENINFO")
                on = s.general[static_cast<size_t>(i)];
            else if (g.keyword == "PLUSLINE")
                on = s.plusLines[static_cast<size_t>(i)];
            else if (auto it = s.groups.find(g.keyword); it != s.groups.end())
                on = it->second.count(selectionIndex(c, g.first + i)) != 0;
            if (on)
                chosen.push_back(g.first + i);
        }
    }
    return chosen;
}

void chooseVariable(BatchSelections& s, const VariableCatalogue& c, int index) {
    setVariableChosen(s, c, index, true);
}

void setVariableChosen(BatchSelections& s, const VariableCatalogue& c, int index, bool on) {
    const BatchVariable& v = c.variable(index);
    const VariableGroup& g = c.groupOf(index);
    if (g.keyword == "GENINFO") {
        s.general[static_cast<size_t>(v.indexInGroup)] = on;
    } else if (g.keyword == "PLUSLINE") {
        s.plusLines[static_cast<size_t>(v.indexInGroup)] = on;
    } else if (on) {
        s.groups[g.keyword].insert(selectionIndex(c, index));
    } else if (auto it = s.groups.find(g.keyword); it != s.groups.end()) {
        it->second.erase(selectionIndex(c, index));
        if (it->second.empty())
            s.groups.erase(it);
    }
}

void chooseAllVariables(BatchSelections& s, const VariableCatalogue& c) {
    for (int i = 0; i < c.size(); ++i)
        chooseVariable(s, c, i);
}

} // namespace tavi
