// Joining database reports into one.
#include "reports/db_custom_report.h"

#include <algorithm>

#include "base/text.h"
#include "reports/db_comparison_report.h"

namespace tavi {

std::vector<std::string> defaultDbCustomKinds() {
    return {"quick-look",           "length-intelligibility", "db-syntax-summary",
            "db-semantics-summary", "db-discourse-summary",   "db-facility-summary",
            "db-errors-summary"};
}

bool dbCustomAccepts(std::string_view kind) {
    const ReportDefinition* report = findReport(kind);
    return report && report->database != DatabaseUse::None && kind != "db-custom-pdf";
}

Report buildDbCustomReport(const ReportInputs& in) {
    Report report;
    report.title = "Customized Database Report";
    report.header = dbReportHeader(in);
    const std::vector<std::string> kinds =
        in.choices.kinds.empty() ? defaultDbCustomKinds() : in.choices.kinds;
    for (const std::string& kind : kinds) {
        if (!dbCustomAccepts(kind))
            continue;
        Report part = findReport(kind)->build(in);
        report.sections.push_back({toUpperAscii(part.title), {}});
        for (ReportSection& section : part.sections)
            report.sections.push_back(std::move(section));
        for (std::string& note : part.footnotes)
            if (std::ranges::find(report.footnotes, note) == report.footnotes.end())
                report.footnotes.push_back(std::move(note));
    }
    return report;
}

} // namespace tavi
