// Choosing, listing and joining the reports of a customised report.
#include "reports/custom_report.h"

#include "base/text.h"
#include "reports/report_header.h"
#include "reports/report_registry.h"

namespace tavi {

namespace {

bool holdable(const ReportDefinition& report, bool withDatabase) {
    return report.name != kCustomReportName &&
           (withDatabase || report.database != DatabaseUse::Required);
}

} // namespace

std::vector<const ReportDefinition*> customReportChoices(bool withDatabase) {
    std::vector<const ReportDefinition*> choices;
    for (const ReportDefinition& report : reportDefinitions())
        if (holdable(report, withDatabase))
            choices.push_back(&report);
    return choices;
}

CustomReportKinds customReportKinds(const std::vector<std::string>& names, bool withDatabase) {
    CustomReportKinds kinds;
    if (names.empty()) {
        for (const ReportDefinition* report : customReportChoices(withDatabase))
            if (report->commandId.starts_with("ID_ANAL_") && report->database == DatabaseUse::None)
                kinds.reports.push_back(report);
        kinds.reports.insert(kinds.reports.begin(), findReport("smr"));
        return kinds;
    }
    for (const std::string& name : names) {
        const ReportDefinition* report = findReport(name);
        if (!report) {
            kinds.problem = "unknown report " + name;
            return kinds;
        }
        if (!holdable(*report, withDatabase)) {
            kinds.problem = report->name == kCustomReportName
                                ? std::string("a customised report cannot hold itself")
                                : std::string(report->name) + " needs a database";
            return kinds;
        }
        kinds.reports.push_back(report);
    }
    return kinds;
}

Report buildCustomContents(const ReportInputs& in) {
    Report report;
    report.title = "Customized Report";
    report.header = reportHeader(in.context, in.labels);
    const CustomReportKinds kinds = customReportKinds(in.choices.kinds, in.database != nullptr);
    ReportSection contents{"CONTENTS", {}};
    if (!kinds.problem.empty())
        contents.items.emplace_back(TextLine{kinds.problem});
    for (const ReportDefinition* definition : kinds.reports)
        contents.items.emplace_back(TextLine{std::string(definition->title)});
    report.sections.push_back(std::move(contents));
    return report;
}

Report joinReports(const Report& contents, const std::vector<Report>& reports) {
    Report joined = contents;
    for (const Report& report : reports) {
        ReportSection head{toUpperAscii(report.title), {}};
        for (const LabelledLine& line : report.header)
            head.items.emplace_back(line);
        joined.sections.push_back(std::move(head));
        for (const ReportSection& section : report.sections)
            joined.sections.push_back(section);
        if (!report.footnotes.empty()) {
            ReportSection notes{"", {}};
            for (const std::string& note : report.footnotes)
                notes.items.emplace_back(TextLine{note});
            joined.sections.push_back(std::move(notes));
        }
    }
    return joined;
}

} // namespace tavi
