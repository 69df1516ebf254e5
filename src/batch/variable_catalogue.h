// The fixed, ordered table of every variable a batch can write: its column
// name, its description for the selection list and the key file, its group,
// its value type (which missing value stands in for an absent value) and where
// its value comes from. This is the only place where column names are spelled.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "analysis/measure_id.h"

namespace tavi {

enum class ValueType { Integer, Decimal, Text };

enum class ValueSource {
    General,  // file name, speaker, analysis set, word base, transcript cut
    PlusLine, // a "+" header line of the transcript
    Measure,  // a measure of the speaker, by its identifier
};

struct BatchVariable {
    std::string name;        // column heading, e.g. "MLUw", "%IntelUt", "CQ Total"
    std::string description; // e.g. "MLU in Words - words, analysis set utterances"
    int group = 0;           // index into VariableCatalogue::groups()
    int indexInGroup = 0;    // the number the selection files use
    ValueType type = ValueType::Integer;
    int decimals = 0; // places written for a decimal value (2 or 3)
    ValueSource source = ValueSource::Measure;
    std::string measure;                // measure identifier, or the header keyword of a plus line
    std::optional<MeasureId> measureId; // of `measure` when it names a single-value measure
};

struct VariableGroup {
    std::string title;   // e.g. "Standard Measures Report"
    std::string keyword; // selection-file keyword, e.g. "SMR"
    int first = 0;       // index of the group's first variable
    int count = 0;
};

class VariableCatalogue {
public:
    // The catalogue, built once.
    static const VariableCatalogue& standard();

    int size() const { return static_cast<int>(variables_.size()); }
    const BatchVariable& variable(int index) const { return variables_.at(index); }
    const std::vector<BatchVariable>& variables() const { return variables_; }
    const std::vector<VariableGroup>& groups() const { return groups_; }
    const VariableGroup& groupOf(int index) const { return groups_.at(variable(index).group); }
    // The group whose selection keyword this is ("SMR"), if any.
    std::optional<int> groupByKeyword(std::string_view keyword) const;
    // Every index whose column name is `name` (several for "MLUw", "NTW", ...).
    std::vector<int> find(std::string_view name) const;

    // Index of the first general and plus-line variables and their counts.
    static constexpr int kGeneralCount = 6;
    static constexpr int kPlusLineCount = 20;

private:
    friend class CatalogueBuilder;
    std::vector<BatchVariable> variables_;
    std::vector<VariableGroup> groups_;
};

} // namespace tavi
