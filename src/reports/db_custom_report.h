// The customised database report: several reports against the database,
// chosen by name, one after another in one document (written as one PDF).
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "reports/report.h"
#include "reports/report_registry.h"

namespace tavi {

// The reports it holds when none is chosen.
std::vector<std::string> defaultDbCustomKinds();

// Whether `kind` may be part of it: any report that compares with a
// database, except itself.
bool dbCustomAccepts(std::string_view kind);

// Each chosen report's title as a section, then its sections; the header
// once, the footnotes of all without repeats.
Report buildDbCustomReport(const ReportInputs& in);

} // namespace tavi
