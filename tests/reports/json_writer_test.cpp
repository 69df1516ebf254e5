// The JSON envelope of a report: header keys that stay distinct, cells that
// read as numbers become numbers, the missing mark becomes null.
#include <gtest/gtest.h>

#include "reports/json_writer.h"
#include "reports/line_format.h"

namespace tavi {
namespace {

TEST(ReportJson, HeaderKeysStayDistinctAndCellsKeepTheirKinds) {
    Report report;
    report.title = "Quick Look";
    report.header = {{"", "", "", "story.tvi"},
                     {"", "Speaker", ":  ", "Child (1st Speaker)"},
                     {"", "", "", "Database: norms.tvidb"},
                     {"", "", "", "Criteria: age 5;0 - 6;0"}};
    ReportTable table;
    table.headings = {"Value", "Percent"};
    table.rows = {{"MLU in Words", {"5.25", "45.3%"}}, {"NDW", {std::string(kMissingMark), "n/a"}}};
    report.sections.push_back({"MEASURES", {table}});
    const std::string json = reportToJson(report, {"quick-look", "story.tvi", 0});
    EXPECT_NE(json.find(R"("Transcript": "story.tvi")"), std::string::npos) << json;
    EXPECT_NE(json.find(R"("Source": "Database: norms.tvidb")"), std::string::npos) << json;
    EXPECT_NE(json.find(R"("Source 2": "Criteria: age 5;0 - 6;0")"), std::string::npos) << json;
    EXPECT_NE(json.find(R"({"label": "MLU in Words", "cells": [5.25, 45.3]})"), std::string::npos)
        << json;
    EXPECT_NE(json.find(R"({"label": "NDW", "cells": [null, "n/a"]})"), std::string::npos) << json;
    EXPECT_NE(json.find(R"("columns": ["Value", "Percent"])"), std::string::npos) << json;
}

} // namespace
} // namespace tavi
