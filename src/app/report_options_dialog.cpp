// Reports without options of their own go straight on.
#include "app/report_options_dialog.h"

#include "app/db_report_options_dialog.h"

namespace tavi::app {

bool chooseReportOptions(const ReportDefinition& report, const TranscriptAnalysis& analysis,
                         ReportChoices& choices, QWidget* parent) {
    if (hasDbReportOptions(report.name))
        return chooseDbReportOptions(report, analysis, choices, parent);
    (void)report;
    (void)analysis;
    (void)choices;
    (void)parent;
    return true;
}

} // namespace tavi::app
