// Reports without options of their own go straight on.
#include "app/report_options_dialog.h"

#include "app/db_report_options_dialog.h"
#include "app/table_report_dialog.h"

namespace tavi::app {

bool chooseReportOptions(const ReportDefinition& report, const TranscriptAnalysis& analysis,
                         ReportChoices& choices, QWidget* parent) {
    if (hasDbReportOptions(report.name))
        return chooseDbReportOptions(report, analysis, choices, parent);
    (void)analysis;
    if (auto chosen = chooseTableReportOptions(report, choices, parent))
        return *chosen;
    return true;
}

} // namespace tavi::app
