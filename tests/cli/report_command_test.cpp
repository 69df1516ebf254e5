// `tavi report` end to end on the bundled samples: golden plain-text reports,
// every output format read back, a label file changing a heading, and the
// usage errors. Set TAVI_UPDATE_GOLDEN=1 to rewrite the golden files after a
// deliberate change, then review their diff.
#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <sys/wait.h>
#include <unistd.h>

#include "../support/tavi_process.h"
#include "base/file_io.h"

namespace {

namespace fs = std::filesystem;

const fs::path kSamples = fs::path(TAVI_TEST_DATA_DIR) / ".." / ".." / "data" / "samples";
const fs::path kGolden = fs::path(TAVI_TEST_DATA_DIR) / "reports";

using tavi::test::TaviRun;

class ReportCommand : public ::testing::Test {
protected:
    void SetUp() override {
        dir_ = fs::temp_directory_path() / ("tavi_report_cmd_" + std::to_string(::getpid()));
        fs::remove_all(dir_);
        fs::create_directories(dir_ / "settings");
    }
    void TearDown() override { fs::remove_all(dir_); }

    // Runs tavi with its own empty settings folder; stdout captured, stderr to a file.
    TaviRun tavi(const std::string& arguments) {
        const std::string command = std::string("'") + TAVI_BINARY + "' --settings-dir '" +
                                    (dir_ / "settings").string() + "' " + arguments + " 2>'" +
                                    (dir_ / "stderr.txt").string() + "'";
        return tavi::test::runShell(command);
    }
    std::string stderrText() {
        std::string text;
        tavi::readFile(dir_ / "stderr.txt", text);
        return text;
    }
    std::string fileText(const fs::path& path) {
        std::string text;
        EXPECT_TRUE(tavi::readFile(path, text)) << path;
        return text;
    }
    std::string pdfText(const fs::path& pdf) {
        const std::string command =
            "pdftotext -layout '" + pdf.string() + "' '" + (dir_ / "pdf.txt").string() + "'";
        EXPECT_EQ(std::system(command.c_str()), 0);
        return fileText(dir_ / "pdf.txt");
    }

    fs::path dir_;
};

void expectGolden(const std::string& actual, const std::string& name) {
    const fs::path golden = kGolden / name;
    if (std::getenv("TAVI_UPDATE_GOLDEN")) {
        ASSERT_EQ(tavi::writeFileAtomic(golden, actual), tavi::WriteStatus::Ok);
        return;
    }
    std::string expected;
    ASSERT_TRUE(tavi::readFile(golden, expected)) << golden;
    EXPECT_EQ(actual, expected) << "report differs from " << golden;
}

TEST_F(ReportCommand, StandardMeasuresReportsOfTheSamplesMatchTheirGoldenText) {
    for (const char* sample : {"conversation-age5", "story-age7", "expository-age10"}) {
        SCOPED_TRACE(sample);
        TaviRun run =
            tavi("report smr '" + (kSamples / (std::string(sample) + ".tvi")).string() + "'");
        EXPECT_EQ(run.status, 0) << stderrText();
        expectGolden(run.out, std::string(sample) + ".smr.txt");
    }
    TaviRun second =
        tavi("report smr --speaker 2 '" + (kSamples / "story-age7.tvi").string() + "'");
    EXPECT_EQ(second.status, 0);
    expectGolden(second.out, "story-age7.smr-speaker2.txt");
}

TEST_F(ReportCommand, SummaryOfUtteranceTypesMatchesItsGoldenText) {
    TaviRun run = tavi("report types '" + (kSamples / "conversation-age5.tvi").string() + "'");
    EXPECT_EQ(run.status, 0) << stderrText();
    expectGolden(run.out, "conversation-age5.types.txt");
}

TEST_F(ReportCommand, OutputFormatFollowsTheExtensionAndReadsBack) {
    const std::string sample = "'" + (kSamples / "story-age7.tvi").string() + "'";
    const TaviRun text = tavi("report smr " + sample);
    ASSERT_EQ(text.status, 0);

    ASSERT_EQ(tavi("report smr -o '" + (dir_ / "r.txt").string() + "' " + sample).status, 0);
    EXPECT_EQ(fileText(dir_ / "r.txt"), "\xEF\xBB\xBF" + text.out);

    ASSERT_EQ(tavi("report smr -o '" + (dir_ / "r.pdf").string() + "' " + sample).status, 0);
    const std::string pdf = pdfText(dir_ / "r.pdf");
    EXPECT_NE(pdf.find("Standard Measures Report"), std::string::npos);
    EXPECT_NE(pdf.find("story-age7.tvi"), std::string::npos);
    EXPECT_NE(pdf.find("SYNTAX/MORPHOLOGY"), std::string::npos);
    EXPECT_NE(pdf.find("# MLU in Words"), std::string::npos);
    EXPECT_NE(pdf.find("Page 1 of 1"), std::string::npos);

    ASSERT_EQ(tavi("report smr -o '" + (dir_ / "r.rtf").string() + "' " + sample).status, 0);
    const std::string rtf = fileText(dir_ / "r.rtf");
    EXPECT_EQ(rtf.rfind("{\\rtf1", 0), 0u);
    EXPECT_NE(rtf.find("SYNTAX/MORPHOLOGY"), std::string::npos);
    EXPECT_NE(rtf.find("\\trowd"), std::string::npos);

    ASSERT_EQ(tavi("report types -o '" + (dir_ / "r.html").string() + "' " + sample).status, 0);
    EXPECT_NE(fileText(dir_ / "r.html").find("<th align=\"right\">Percent</th>"),
              std::string::npos);

    ASSERT_EQ(tavi("report types -o '" + (dir_ / "r.csv").string() + "' " + sample).status, 0);
    const std::string csv = fileText(dir_ / "r.csv");
    EXPECT_EQ(csv.rfind("\xEF\xBB\xBFSummary of Utterance Types,,\n", 0), 0u) << csv;
    EXPECT_NE(csv.find("\n,Number,Percent\n"), std::string::npos);

    ASSERT_EQ(tavi("report types -o '" + (dir_ / "r.tsv").string() + "' " + sample).status, 0);
    EXPECT_NE(fileText(dir_ / "r.tsv").find("\n\tNumber\tPercent\n"), std::string::npos);
}

TEST_F(ReportCommand, LabelFileOverrideChangesAHeading) {
    ASSERT_EQ(tavi::writeFileAtomic(dir_ / "settings" / "TAVI_Labels.ini",
                                    "\xEF\xBB\xBFPRIMARY RL_HEADSEM VOCABULARY\n"
                                    "primary RL_MLUW Mean Length in Words\n"),
              tavi::WriteStatus::Ok);
    TaviRun run = tavi("report smr '" + (kSamples / "story-age7.tvi").string() + "'");
    ASSERT_EQ(run.status, 0) << stderrText();
    EXPECT_NE(run.out.find("\nVOCABULARY\n"), std::string::npos) << run.out;
    EXPECT_EQ(run.out.find("\nSEMANTICS\n"), std::string::npos);
    EXPECT_NE(run.out.find("\n# Mean Length in Words:  "), std::string::npos);
}

TEST_F(ReportCommand, BadUsageAndTranscriptsWithErrorsAreRefused) {
    const std::string sample = "'" + (kSamples / "story-age7.tvi").string() + "'";
    EXPECT_EQ(tavi("report perf " + sample).status, 2);
    EXPECT_EQ(tavi("report smr --speaker 3 " + sample).status, 2);
    EXPECT_EQ(tavi("report smr -o '" + (dir_ / "r.doc").string() + "' " + sample).status, 2);
    EXPECT_NE(stderrText().find("unknown report format .doc"), std::string::npos);
    EXPECT_EQ(tavi("report smr '" + (dir_ / "missing.tvi").string() + "'").status, 2);

    ASSERT_EQ(tavi::writeFileAtomic(dir_ / "bad.tvi", "$ Child, Examiner\nC I go [EW went].\n"),
              tavi::WriteStatus::Ok);
    TaviRun bad = tavi("report smr '" + (dir_ / "bad.tvi").string() + "'");
    EXPECT_EQ(bad.status, 1);
    EXPECT_TRUE(bad.out.empty());
    EXPECT_NE(stderrText().find("contains errors"), std::string::npos);
}

} // namespace
