// How values become cells: column order, absent values by type, decimal
// places, header lines and the quoting of the written file.
#include <gtest/gtest.h>

#include "batch/batch_columns.h"
#include "batch/batch_run.h"
#include "reports/grid_writer.h"

namespace tavi {
namespace {

SegmentedTranscript transcriptWithHeaders() {
    SegmentedTranscript t;
    t.speakers.groups[0].labels = {"Child"};
    t.speakers.groups[1].labels = {"Examiner"};
    t.headers = {{"Name", "Smith, Jo", 1},
                 {"CA", "7;4", 2},
                 {"context", "Nar", 3},
                 {"Story", "Frog \"Where\"", 4}};
    return t;
}

BatchSelections chosen(std::initializer_list<const char*> names) {
    BatchSelections s;
    const VariableCatalogue& c = VariableCatalogue::standard();
    for (const char* name : names)
        chooseVariable(s, c, c.find(name).front());
    return s;
}

std::vector<std::string> headings(const std::vector<BatchColumn>& columns) {
    std::vector<std::string> h;
    for (const BatchColumn& c : columns)
        h.push_back(c.heading());
    return h;
}

TEST(BatchRow, ColumnsGeneralPlusLinesSpecificPlusLinesThenMeasures) {
    BatchSelections s = chosen({"MLUw", "CAmm", "Name", "Tot#Mz"});
    s.general = {true, true, false, false, false, false};
    s.plusList = {"Story"};
    std::vector<BatchColumn> columns = batchColumns(s, VariableCatalogue::standard());
    EXPECT_EQ(headings(columns), (std::vector<std::string>{"Filename", "Speaker#", "Name", "CAmm",
                                                           "Story", "MLUw", "Tot#Mz"}));
    EXPECT_EQ(columns[4].description(), "Specific plus line variable");
    EXPECT_EQ(columns[4].category(), "Plus Lines");
    EXPECT_EQ(columns[6].category(), "Verbal Facility Summary");
}

TEST(BatchRow, ValuesMissingValuesAndDecimalPlaces) {
    BatchSelections s = chosen({"MLUw", "TTR", "NTW", "BrownStg", "TimeMinSec", "CAyy", "CAmm",
                                "CA", "Context", "Grade", "%IntelUt"});
    s.plusList = {"Story", "Absent"};
    s.missingText = "NA";
    s.missingInteger = "-9";
    s.missingDecimal = "-9.0";
    SegmentedTranscript t = transcriptWithHeaders();
    SpeakerMeasures m;
    m[MeasureId::MLUw] = Value::real(3.14159);
    m[MeasureId::TTR] = Value::real(0.45678);
    m[MeasureId::NTW] = Value::count(120);
    m[MeasureId::BrownStg] = Value::text("Late I");
    RowSource src{"a.tvi", &t, -1, 1, &m, "C&I Verbal Utts", "All Words", "Entire Transcript",
                  0,       {}, {}};
    std::vector<BatchColumn> columns = batchColumns(s, VariableCatalogue::standard());
    std::vector<std::string> row = batchRow(columns, src, s);
    EXPECT_EQ(headings(columns),
              (std::vector<std::string>{"Filename", "Speaker#", "Speaker", "AnalysisSet",
                                        "WordBase", "TranCut", "CA", "CAyy", "CAmm", "Grade",
                                        "Context", "Story", "Absent", "%IntelUt", "MLUw", "NTW",
                                        "BrownStg", "TTR", "TimeMinSec"}));
    EXPECT_EQ(row, (std::vector<std::string>{"a.tvi", "2", "Examiner", "C&I Verbal Utts",
                                             "All Words", "Entire Transcript", "7;4", "7", "88",
                                             "NA", "Nar", "Frog \"Where\"", "NA", "-9.0", "3.14",
                                             "120", "Late I", "0.457", "NA"}));
    src.ageMonths = 100; // the checker's age (from DOB and DOE) wins over the CA line
    row = batchRow(columns, src, s);
    EXPECT_EQ(row[7], "8");
    EXPECT_EQ(row[8], "100");
}

TEST(BatchRow, GridTitles) {
    EXPECT_EQ(dataGridTitle(std::nullopt), "RDF");
    EXPECT_EQ(keyGridTitle(std::nullopt), "RDF Key");
    EXPECT_EQ(dataGridTitle(std::filesystem::path("/x/study.v2.SBT")), "study_RDF");
    EXPECT_EQ(keyGridTitle(std::filesystem::path("study.SBT")), "study_RDFKey");
}

TEST(BatchRow, WordBaseText) {
    WordBase base;
    EXPECT_EQ(wordBaseText(base), "Excluding Parenthetical Remarks");
    base.excludeParenthetical = false;
    EXPECT_EQ(wordBaseText(base), "All Words");
    base.excludeCodes = "EW,EO";
    EXPECT_EQ(wordBaseText(base), "Excluding Words with Codes EW,EO");
}

// A cell holding the separator is quoted, an inner quote is not doubled, and a
// quote without a separator stays bare.
TEST(BatchRow, QuotingInTheWrittenFile) {
    Grid g;
    g.addColumn("Name");
    g.addColumn("Value");
    g.addRow({"3,5", "say \"hi\""});
    g.addRow({"Smith, \"Jo\"", "a\tb"});
    EXPECT_EQ(gridFileBytes(g, ','), "\xEF\xBB\xBFName,Value\n\"3,5\",say \"hi\"\n"
                                     "\"Smith, \"Jo\"\",a\tb\n");
    EXPECT_EQ(gridFileBytes(g, '\t'), "\xEF\xBB\xBFName\tValue\n3,5\tsay \"hi\"\n"
                                      "Smith, \"Jo\"\t\"a\tb\"\n");
}

} // namespace
} // namespace tavi
