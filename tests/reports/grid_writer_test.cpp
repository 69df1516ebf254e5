// Grid files byte for byte: byte order mark, separators, the quoting rule
// (inner quotes not doubled), padding of short rows, and the save messages.
#include <gtest/gtest.h>

#include <filesystem>
#include <unistd.h>

#include "base/file_io.h"
#include "reports/grid_writer.h"

namespace tavi {
namespace {

Grid sampleGrid() {
    Grid grid;
    grid.title = "Study_RDF";
    grid.addColumn("Filename");
    grid.addColumn("MLUw");
    grid.addColumn("Note");
    grid.addRow({"a.tvi", "3,5", "say \"hi\""});
    grid.addRow({"b.tvi", "4.10", "\"yes\", she said"});
    grid.addRow({"c.tvi"});
    return grid;
}

TEST(GridWriter, CommaFileQuotesOnlyCellsHoldingTheCommaAndNeverDoublesQuotes) {
    EXPECT_EQ(gridFileBytes(sampleGrid(), ','), "\xEF\xBB\xBF"
                                                "Filename,MLUw,Note\n"
                                                "a.tvi,\"3,5\",say \"hi\"\n"
                                                "b.tvi,4.10,\"\"yes\", she said\"\n"
                                                "c.tvi,,\n");
}

TEST(GridWriter, TabFileQuotesOnlyCellsHoldingATab) {
    Grid grid = sampleGrid();
    grid.rows[1][2] = "two\tparts";
    EXPECT_EQ(gridFileBytes(grid, '\t'), "\xEF\xBB\xBF"
                                         "Filename\tMLUw\tNote\n"
                                         "a.tvi\t3,5\tsay \"hi\"\n"
                                         "b.tvi\t4.10\t\"two\tparts\"\n"
                                         "c.tvi\t\t\n");
}

// The standard form quotes every cell holding the separator, a quote or a line
// break and doubles inner quotes; a plain cell stays bare in both forms.
TEST(GridWriter, Rfc4180QuotingDoublesInnerQuotesAndQuotesLineBreaks) {
    Grid grid = sampleGrid();
    grid.rows[2] = {"c.tvi", "", "two\nlines"};
    EXPECT_EQ(gridFileBytes(grid, ',', GridQuoting::Rfc4180),
              "\xEF\xBB\xBF"
              "Filename,MLUw,Note\n"
              "a.tvi,\"3,5\",\"say \"\"hi\"\"\"\n"
              "b.tvi,4.10,\"\"\"yes\"\", she said\"\n"
              "c.tvi,,\"two\nlines\"\n");
    grid.rows[1][2] = "two\tparts";
    EXPECT_EQ(gridCellText(grid.rows[1][2], '\t', GridQuoting::Rfc4180), "\"two\tparts\"");
    EXPECT_EQ(gridCellText("two\tparts", ',', GridQuoting::Rfc4180), "two\tparts");
    EXPECT_EQ(gridCellText("Smith, \"Jo\"", '\t', GridQuoting::Rfc4180), "\"Smith, \"\"Jo\"\"\"");
}

TEST(GridWriter, EmptyGridIsOnlyTheByteOrderMarkAndAnEmptyHeadingLine) {
    EXPECT_EQ(gridFileBytes(Grid{}, ','), "\xEF\xBB\xBF\n");
}

TEST(GridWriter, TableFormatSettingChoosesSeparatorFilterAndExtension) {
    EXPECT_EQ(gridFormatFromSetting(2), GridFormat::Csv);
    EXPECT_EQ(gridFormatFromSetting(3), GridFormat::Tsv);
    EXPECT_EQ(gridFormatFromSetting(0), GridFormat::Txt);
    EXPECT_EQ(gridFormatFromSetting(7), GridFormat::Txt);
    EXPECT_EQ(gridSeparator(GridFormat::Csv), ',');
    EXPECT_EQ(gridSeparator(GridFormat::Tsv), '\t');
    EXPECT_EQ(gridSeparator(GridFormat::Txt), '\t');
    EXPECT_STREQ(gridFileFilter(GridFormat::Csv), "Comma Separated Values - Excel (*.CSV)|*.CSV|");
    EXPECT_STREQ(gridFileFilter(GridFormat::Tsv), "Tab Separated Values (*.TSV)|*.TSV|");
    EXPECT_STREQ(gridFileFilter(GridFormat::Txt), "Tab-delimited Text (*.TXT)|*.TXT|");
    EXPECT_STREQ(gridExtension(GridFormat::Tsv), ".tsv");
}

class GridSave : public ::testing::Test {
protected:
    void SetUp() override {
        dir_ = std::filesystem::temp_directory_path() /
               ("tavi_grid_test_" + std::to_string(::getpid()));
        std::filesystem::remove_all(dir_);
    }
    void TearDown() override { std::filesystem::remove_all(dir_); }
    std::filesystem::path dir_;
};

TEST_F(GridSave, CreatesTheFolderAndReplacesAnExistingFileWhole) {
    auto path = dir_ / "out" / "study.csv";
    ASSERT_EQ(saveGrid(sampleGrid(), GridFormat::Csv, path), "");
    Grid small;
    small.addColumn("Only");
    ASSERT_EQ(saveGrid(small, GridFormat::Csv, path), "");
    std::string bytes;
    ASSERT_TRUE(readFile(path, bytes));
    EXPECT_EQ(bytes, "\xEF\xBB\xBFOnly\n");
    // No temporary file is left beside it.
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(dir_ / "out"),
                            std::filesystem::directory_iterator()),
              1);
}

TEST_F(GridSave, UnopenableFileSaysCannotOpenFile) {
    std::filesystem::create_directories(dir_);
    // A path below a regular file can be neither created nor opened.
    ASSERT_TRUE(writeFileAtomic(dir_ / "plain", "x") == WriteStatus::Ok);
    EXPECT_EQ(saveGrid(sampleGrid(), GridFormat::Tsv, dir_ / "plain" / "a.tsv"),
              "cannot open file");
}

} // namespace
} // namespace tavi
