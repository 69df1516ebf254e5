// Explore Words & Codes and Explore Plus Line Values against a database.
#include "reports/explore_db_reports.h"

#include "analysis/explore_items.h"
#include "reports/db_comparison_report.h"

namespace tavi {

namespace {

Report exploreReport(const ReportInputs& in, std::string title, std::string sectionTitle,
                     const std::vector<std::string>& names, std::string (*key)(std::string_view),
                     MeasureFormat kind, std::string none) {
    Report report;
    report.title = std::move(title);
    report.header = dbReportHeader(in);
    ReportSection section{std::move(sectionTitle), {}};
    if (names.empty()) {
        section.items.push_back(TextLine{std::move(none)});
    } else {
        ReportTable table;
        table.headings = dbComparisonHeadings();
        for (const std::string& name : names) {
            std::optional<SmrDatabaseColumn> column;
            if (in.database && in.database->extra)
                column = in.database->extra(key(name));
            table.rows.push_back(
                {name, dbComparisonCells(column, column ? column->value : std::nullopt, kind)});
        }
        section.items.push_back(std::move(table));
    }
    report.sections.push_back(std::move(section));
    report.footnotes.push_back(dbLegend(in));
    return report;
}

} // namespace

std::string exploreItemKey(std::string_view item) {
    return "item:" + std::string(item);
}

std::string explorePlusLineKey(std::string_view keyword) {
    return "plus:" + std::string(keyword);
}

Report buildExploreWordsCodesReport(const ReportInputs& in) {
    return exploreReport(in, in.labels("RL_EXPLWC"), in.labels("RL_DBWCLIST"),
                         in.choices.exploreItems, exploreItemKey, MeasureFormat::Count,
                         "No words or codes were chosen.");
}

Report buildExplorePlusLinesReport(const ReportInputs& in) {
    const std::vector<std::string> keywords = in.choices.plusLines.empty()
                                                  ? numericPlusLines(in.analysis.check.segmented)
                                                  : in.choices.plusLines;
    return exploreReport(in, "Explore Plus Line Values", in.labels("RL_DBPLINE"), keywords,
                         explorePlusLineKey, MeasureFormat::Mean,
                         "The transcript has no \"+\" line with a number.");
}

} // namespace tavi
