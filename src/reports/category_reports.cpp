// The grammatical-category reports.
#include "reports/category_reports.h"

#include "analysis/grammatical_categories.h"
#include "base/format.h"
#include "reports/table_report_support.h"

namespace tavi {

namespace {

constexpr std::string_view kNoDictionary =
    "Grammatical categories not determined - dictionary not available.";

} // namespace

Report buildGrammaticalCategoryReport(const ReportInputs& in) {
    Report report = tableReportStart(in, in.labels("RL_GC"));
    ReportSection section;
    if (!in.analysis.result.categoriesAvailable) {
        section.items.emplace_back(TextLine{std::string(kNoDictionary)});
        report.sections.push_back(std::move(section));
        return report;
    }
    const SpeakerMeasures& m = in.analysis.measures();
    ReportTable table;
    table.labelHeading = in.labels("RL_CATEGORY");
    table.headings = {"Types", "Total"};
    for (int c = 0; c < kGrammaticalCategories; ++c) {
        const WordCount& count = m.categories[static_cast<size_t>(c)];
        table.rows.push_back({std::string(kGrammaticalCategoryTable[static_cast<size_t>(c)].label),
                              {format("%d", count.types), format("%d", count.total)}});
    }
    section.items.emplace_back(std::move(table));
    report.sections.push_back(std::move(section));
    return report;
}

Report buildCategoryListReport(const ReportInputs& in) {
    Report report = tableReportStart(in, in.labels("RL_GCLISTS"));
    if (!in.analysis.result.categoriesAvailable) {
        report.sections.push_back({"", {TextLine{std::string(kNoDictionary)}}});
        return report;
    }
    const SpeakerMeasures& m = in.analysis.measures();
    for (int c = 0; c < kGrammaticalCategories; ++c) {
        const WordCount& count = m.categories[static_cast<size_t>(c)];
        ReportSection section;
        section.title = std::string(kGrammaticalCategoryTable[static_cast<size_t>(c)].label);
        section.items.emplace_back(LabelledLine{"", "Types", ":  ", format("%d", count.types)});
        section.items.emplace_back(LabelledLine{"", "Total", ":  ", format("%d", count.total)});
        if (!count.words.empty())
            section.items.emplace_back(TextLine{joinCarriers(count.words)});
        report.sections.push_back(std::move(section));
    }
    return report;
}

} // namespace tavi
