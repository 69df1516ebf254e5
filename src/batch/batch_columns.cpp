// Column lists and row texts of a batch.
#include "batch/batch_columns.h"

#include <algorithm>
#include <charconv>

#include "base/format.h"
#include "base/text.h"

namespace tavi {

namespace {

constexpr const char* kSpecificPlusLine = "Specific plus line variable";

const VariableCatalogue& catalogue() {
    return VariableCatalogue::standard();
}

const HeaderLine* findHeader(const SegmentedTranscript& t, std::string_view keyword) {
    for (const HeaderLine& h : t.headers)
        if (equalsIgnoreCase(h.keyword, keyword))
            return &h;
    return nullptr;
}

// "yy;mm" in months; -1 when it does not read.
int caMonths(std::string_view ca) {
    size_t semi = ca.find(';');
    if (semi == std::string_view::npos)
        return -1;
    std::string_view yy = trim(ca.substr(0, semi));
    std::string_view mm = trim(ca.substr(semi + 1));
    int years = 0;
    int months = 0;
    auto y = std::from_chars(yy.data(), yy.data() + yy.size(), years);
    auto m = std::from_chars(mm.data(), mm.data() + mm.size(), months);
    if (yy.empty() || mm.empty() || y.ec != std::errc() || m.ec != std::errc() ||
        y.ptr != yy.data() + yy.size() || m.ptr != mm.data() + mm.size() || years < 0 ||
        months < 0 || months > 11)
        return -1;
    return years * 12 + months;
}

std::string speakerLabels(const SegmentedTranscript& t, int speaker) {
    std::string joined;
    for (const std::string& label : t.speakers.groups[static_cast<size_t>(speaker)].labels)
        joined += (joined.empty() ? "" : ", ") + label;
    return joined;
}

std::string generalText(const BatchVariable& v, const RowSource& src, const BatchSelections& s) {
    std::string text;
    if (v.name == "Filename")
        text = src.fileName;
    else if (v.name == "Speaker#")
        text = format("%d", src.speaker + 1);
    else if (v.name == "Speaker")
        text = speakerLabels(*src.transcript, src.speaker);
    else if (v.name == "AnalysisSet")
        text = src.analysisSet;
    else if (v.name == "WordBase")
        text = src.wordBase;
    else if (v.name == "TranCut")
        text = src.cut;
    return text.empty() ? missingValue(v.type, s) : text;
}

std::string plusLineText(const BatchVariable& v, const RowSource& src, const BatchSelections& s) {
    const HeaderLine* h = findHeader(*src.transcript, v.measure);
    if (v.name == "CAyy" || v.name == "CAmm") {
        int months = src.ageMonths >= 0 ? src.ageMonths : h ? caMonths(h->value) : -1;
        if (months < 0)
            return missingValue(v.type, s);
        return format("%d", v.name == "CAyy" ? months / 12 : months);
    }
    if (h && !h->value.empty())
        return h->value;
    return missingValue(v.type, s);
}

} // namespace

namespace {

struct ExploreCountText {
    const char* suffix;
    const char* description;
};
constexpr ExploreCountText kExploreTexts[] = {
    {"ExplSelUtts", "Utterances meeting the explore criteria"},
    {"_Occ", "number of occurrences"},
    {"_Utt", "utterances containing word or code"},
    {"_Forms", "number of different forms"},
    {"_Words", "number of different words"},
    {"_Pres", "presence or absence"},
    {"_First", "mentioned first"},
};

const ExploreCountText& exploreText(ExploreCount c) {
    return kExploreTexts[static_cast<int>(c)];
}

int exploreValue(const BatchColumn& column, const RowSource& src) {
    if (column.count == ExploreCount::SelectedUtterances)
        return src.exploreSelected;
    const size_t i = static_cast<size_t>(column.item);
    if (i >= src.exploreItems.size())
        return 0;
    const ExploreItemTally& t = src.exploreItems[i];
    switch (column.count) {
    case ExploreCount::SelectedUtterances:
    case ExploreCount::Occurrences:
        return t.occurrences;
    case ExploreCount::Utterances:
        return t.utterances;
    case ExploreCount::DifferentForms:
        return t.forms;
    case ExploreCount::DifferentWords:
        return t.words;
    case ExploreCount::Presence:
        return t.occurrences > 0 ? 1 : 0;
    case ExploreCount::MentionedFirst:
        break;
    }
    const int other = i < src.otherExploreItems.size() ? src.otherExploreItems[i].firstLine : 0;
    return t.firstLine > 0 && (other == 0 || t.firstLine < other) ? 1 : 0;
}

} // namespace

std::string BatchColumn::heading() const {
    if (explore)
        return count == ExploreCount::SelectedUtterances ? exploreText(count).suffix
                                                         : plusLine + exploreText(count).suffix;
    return variable >= 0 ? catalogue().variable(variable).name : plusLine;
}

std::string BatchColumn::description() const {
    if (explore)
        return count == ExploreCount::SelectedUtterances
                   ? exploreText(count).description
                   : plusLine + " - " + exploreText(count).description;
    return variable >= 0 ? catalogue().variable(variable).description : kSpecificPlusLine;
}

std::string BatchColumn::category() const {
    if (explore)
        return "Explore";
    return variable >= 0 ? catalogue().groupOf(variable).title : "Plus Lines";
}

ValueType BatchColumn::type() const {
    if (explore)
        return ValueType::Integer;
    return variable >= 0 ? catalogue().variable(variable).type : ValueType::Text;
}

ExploreCriteria exploreCriteriaOf(const ExploreOptions& e) {
    ExploreCriteria c;
    auto pick = [](int choice, auto first) {
        using E = decltype(first);
        return static_cast<E>(choice >= 0 && choice <= 2 ? choice : 0);
    };
    c.utterances = pick(e.utteranceChoice, ExploreUtterances::Total);
    c.area = pick(e.areaChoice, ExploreArea::MainBody);
    c.roots = pick(e.rootIdChoice, ExploreRoots::Produced);
    // Codes of either kind unless one is chosen.
    const ExploreCodes codeTypes[] = {ExploreCodes::Either, ExploreCodes::Word,
                                      ExploreCodes::Utterance};
    c.codes = codeTypes[e.codeTypeChoice >= 0 && e.codeTypeChoice <= 2 ? e.codeTypeChoice : 0];
    c.all = e.wordBaseAnd;
    c.negate = e.wordBaseNot;
    c.mazeFilledPauses = e.mazeFilledPauses;
    c.mazeRepetitions = e.mazeRepetitions;
    c.mazeRevisions = e.mazeRevisions;
    for (int t : e.wordBaseChoices)
        if (t >= 0 && t < kExploreTypes)
            c.types.insert(static_cast<ExploreType>(t));
    c.lengthFrom = std::max(0, e.lengthFrom);
    c.lengthTo = std::max(0, e.lengthTo);
    c.lengthInMorphemes = e.lengthInMorphemes;
    for (const ExploreEntry& entry : e.wordList) {
        std::string_view text = trim(entry.text);
        if (text.empty())
            continue;
        if (entry.speakerCode && text.front() != '[')
            c.items.push_back("[" + std::string(text) + "]");
        else
            c.items.emplace_back(text);
    }
    return c;
}

bool anyExploreCount(const ExploreOptions& e) {
    return e.selectedUtterances || e.occurrences || e.utterances || e.differentForms ||
           e.differentWords || e.presence || e.mentionedFirst;
}

void tallyExplore(const TranscriptAnalysis& analysis, const ExploreOptions& options,
                  RowSource& source) {
    ExploreCriteria criteria = exploreCriteriaOf(options);
    const TranLines none;
    auto speakerOf = [](int s) { return s == 1 ? ExploreSpeaker::Second : ExploreSpeaker::First; };
    criteria.speaker = speakerOf(source.speaker);
    source.exploreSelected = static_cast<int>(exploreAnalysis(analysis, none, criteria).size());
    // The items are counted over the utterances that meet the other criteria.
    ExploreCriteria within = criteria;
    within.items.clear();
    source.exploreItems =
        tallyExploreItems(analysis, exploreAnalysis(analysis, none, within), criteria);
    within.speaker = speakerOf(1 - source.speaker);
    source.otherExploreItems =
        tallyExploreItems(analysis, exploreAnalysis(analysis, none, within), criteria);
}

std::vector<BatchColumn> batchColumns(const BatchSelections& s, const VariableCatalogue& c) {
    std::vector<BatchColumn> columns;
    bool plusListAdded = false;
    auto addPlusList = [&] {
        if (plusListAdded)
            return;
        plusListAdded = true;
        for (const std::string& keyword : s.plusList)
            columns.push_back({-1, keyword});
    };
    for (int index : chosenVariables(s, c)) {
        if (c.variable(index).source == ValueSource::Measure)
            addPlusList();
        columns.push_back({index, {}});
    }
    addPlusList();
    const ExploreOptions& e = s.explore;
    auto addExplore = [&](ExploreCount count, int item, std::string label) {
        BatchColumn column;
        column.explore = true;
        column.count = count;
        column.item = item;
        column.plusLine = std::move(label);
        columns.push_back(std::move(column));
    };
    if (e.selectedUtterances)
        addExplore(ExploreCount::SelectedUtterances, -1, {});
    const std::vector<std::string> items = exploreCriteriaOf(e).items;
    const std::pair<bool, ExploreCount> counts[] = {
        {e.occurrences, ExploreCount::Occurrences},
        {e.utterances, ExploreCount::Utterances},
        {e.differentForms, ExploreCount::DifferentForms},
        {e.differentWords, ExploreCount::DifferentWords},
        {e.presence, ExploreCount::Presence},
        {e.mentionedFirst, ExploreCount::MentionedFirst},
    };
    for (size_t i = 0; i < items.size(); ++i)
        for (auto [on, count] : counts)
            if (on)
                addExplore(count, static_cast<int>(i), items[i]);
    return columns;
}

const std::string& missingValue(ValueType type, const BatchSelections& s) {
    switch (type) {
    case ValueType::Integer:
        return s.missingInteger;
    case ValueType::Decimal:
        return s.missingDecimal;
    case ValueType::Text:
        break;
    }
    return s.missingText;
}

std::string batchValueText(const Value& value, const BatchVariable& v, const BatchSelections& s) {
    if (value.isCount())
        return formatInteger(value.asCount());
    if (value.isReal())
        return formatFixed(value.asReal(), v.decimals > 0 ? v.decimals : 2);
    if (value.isText() && !value.asText().empty())
        return value.asText();
    return missingValue(v.type, s);
}

std::vector<std::string> batchRow(const std::vector<BatchColumn>& columns, const RowSource& src,
                                  const BatchSelections& s) {
    std::vector<std::string> row;
    row.reserve(columns.size());
    for (const BatchColumn& column : columns) {
        if (column.explore) {
            row.push_back(formatInteger(exploreValue(column, src)));
            continue;
        }
        if (column.variable < 0) {
            const HeaderLine* h = findHeader(*src.transcript, column.plusLine);
            row.push_back(h && !h->value.empty() ? h->value : s.missingText);
            continue;
        }
        const BatchVariable& v = catalogue().variable(column.variable);
        switch (v.source) {
        case ValueSource::General:
            row.push_back(generalText(v, src, s));
            break;
        case ValueSource::PlusLine:
            row.push_back(plusLineText(v, src, s));
            break;
        case ValueSource::Measure: {
            const Value* value = !src.measures             ? nullptr
                                 : v.measureId.has_value() ? &(*src.measures)[*v.measureId]
                                                           : src.measures->find(v.measure);
            row.push_back(value ? batchValueText(*value, v, s) : missingValue(v.type, s));
            break;
        }
        }
    }
    return row;
}

} // namespace tavi
