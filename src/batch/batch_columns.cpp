// Column lists and row texts of a batch.
#include "batch/batch_columns.h"

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

std::string BatchColumn::heading() const {
    return variable >= 0 ? catalogue().variable(variable).name : plusLine;
}

std::string BatchColumn::description() const {
    return variable >= 0 ? catalogue().variable(variable).description : kSpecificPlusLine;
}

std::string BatchColumn::category() const {
    return variable >= 0 ? catalogue().groupOf(variable).title : "Plus Lines";
}

ValueType BatchColumn::type() const {
    return variable >= 0 ? catalogue().variable(variable).type : ValueType::Text;
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
        return format("%d", value.asCount());
    if (value.isReal())
        return format("%0.*f", v.decimals > 0 ? v.decimals : 2, value.asReal());
    if (value.isText() && !value.asText().empty())
        return value.asText();
    return missingValue(v.type, s);
}

std::vector<std::string> batchRow(const std::vector<BatchColumn>& columns, const RowSource& src,
                                  const BatchSelections& s) {
    std::vector<std::string> row;
    row.reserve(columns.size());
    for (const BatchColumn& column : columns) {
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
            const Value* value = src.measures ? src.measures->find(v.measure) : nullptr;
            row.push_back(value ? batchValueText(*value, v, s) : missingValue(v.type, s));
            break;
        }
        }
    }
    return row;
}

} // namespace tavi
