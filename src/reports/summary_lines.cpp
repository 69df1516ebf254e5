// Measure lines and distribution columns shared by the summaries.
#include "reports/summary_lines.h"

#include "base/format.h"
#include "base/text.h"
#include "reports/line_format.h"
#include "reports/report_header.h"
#include "reports/report_registry.h"

namespace tavi {

std::string summaryText(std::string_view keyOrText, const LabelSource& labels) {
    if (keyOrText.starts_with("RL_"))
        return labels(keyOrText);
    return std::string(keyOrText);
}

LabelledLine summaryLine(const SummaryLine& line, const SpeakerMeasures& measures,
                         const LabelSource& labels) {
    std::string label = summaryText(line.label, labels);
    if (!line.suffix.empty())
        label += " " + summaryText(line.suffix, labels);
    if (line.percentOf)
        label = percentLabel(label);
    std::string value(kMissingMark);
    if (std::optional<MeasureId> id = measureIdByName(line.measureId))
        value = measures.formatted(*id);
    // The moving-average NTW is the window size: a whole number.
    if (line.measureId == "MA_NTW")
        value = formatCount(measures[MeasureId::MA_NTW].number());
    return {line.analysisSet ? "# " : "  ", std::move(label), ":  ", std::move(value)};
}

Report buildSummaryReport(const ReportInputs& in, std::string_view titleKey,
                          std::span<const SummarySection> sections) {
    Report report;
    report.title = summaryText(titleKey, in.labels);
    report.header = reportHeader(in.context, in.labels);
    bool anyAnalysisSetLine = false;
    const SpeakerMeasures& measures = in.analysis.measures();
    for (const SummarySection& def : sections) {
        ReportSection section{toUpperAscii(summaryText(def.title, in.labels)), {}};
        for (const SummaryLine& line : def.lines) {
            section.items.push_back(summaryLine(line, measures, in.labels));
            anyAnalysisSetLine = anyAnalysisSetLine || line.analysisSet;
        }
        report.sections.push_back(std::move(section));
    }
    if (anyAnalysisSetLine)
        report.footnotes.push_back(in.labels("RL_ITALICSNOTE2"));
    return report;
}

std::optional<double> percentOfTotal(std::optional<double> count, std::optional<double> total) {
    if (!count || !total || *total <= 0)
        return std::nullopt;
    // Rounded through single precision, as the other tables of counts are.
    return static_cast<double>(static_cast<float>(*count * 100.0 / *total));
}

std::vector<int> distributionSpeakers(const ReportInputs& in) {
    if (in.analysis.check.segmented.speakers.hasSecondSpeaker())
        return {0, 1};
    return {0};
}

std::vector<std::string> speakerColumns(const ReportInputs& in, int speaker) {
    std::string name;
    for (const std::string& label :
         in.analysis.check.segmented.speakers.groups[static_cast<size_t>(speaker)].labels)
        name += (name.empty() ? "" : ", ") + label;
    if (name.empty())
        name = in.labels(speaker == 0 ? "RL_SPK1ST" : "RL_SPK2ND");
    return {name + " " + in.labels("RL_RPNUM"), name + " Percent"};
}

ReportTable distributionTable(const ReportInputs& in, std::string_view heading,
                              std::string_view prefix, int from, int to,
                              const std::vector<int>& speakers) {
    ReportTable table;
    table.labelHeading = std::string(heading);
    for (int speaker : speakers)
        for (std::string& column : speakerColumns(in, speaker))
            table.headings.push_back(std::move(column));
    auto value = [&](int speaker, const std::string& id) -> std::optional<double> {
        const Value* v = in.analysis.result.speakers[static_cast<size_t>(speaker)].find(id);
        return v ? v->number() : std::nullopt;
    };
    const std::string totalId = std::string(prefix) + "Tot";
    auto addRow = [&](std::string label, const std::string& id) {
        ReportTable::Row row{std::move(label), {}};
        for (int speaker : speakers) {
            const std::optional<double> count = value(speaker, id);
            row.cells.push_back(formatCount(count));
            row.cells.push_back(formatPercent(percentOfTotal(count, value(speaker, totalId))));
        }
        table.rows.push_back(std::move(row));
    };
    for (int n = from; n <= to; ++n)
        addRow(n == to ? format("%d+", n) : format("%d", n),
               format("%s%d", std::string(prefix).c_str(), n));
    addRow(in.labels("RL_TOTAL"), totalId);
    return table;
}

} // namespace tavi
