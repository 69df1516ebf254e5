// `tavi report` for the Analyze menu's lists and tables: golden text of two
// reports of a sample, the flags that choose lists and orders, and each kind
// written as PDF and read back with pdftotext (when poppler-utils is there).
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <unistd.h>

#include "../support/golden_text.h"
#include "../support/tavi_process.h"
#include "base/file_io.h"

namespace {

using tavi::test::expectGolden;

namespace fs = std::filesystem;

constexpr const char* kKinds[] = {"utterance-lists",  "bound-morphemes",  "bound-clitics",
                                  "word-roots",       "word-lists",       "grammatical-categories",
                                  "category-lists",   "omissions-errors", "word-codes",
                                  "utterance-codes",  "fluency-codes",    "nonmainstream-codes",
                                  "code-switch-codes"};

class TableReportCommand : public ::testing::Test {
protected:
    void SetUp() override {
        dir_ = fs::temp_directory_path() / ("tavi_table_reports_" + std::to_string(::getpid()));
        fs::remove_all(dir_);
        fs::create_directories(dir_ / "settings");
    }
    void TearDown() override { fs::remove_all(dir_); }

    tavi::test::TaviRun tavi(const std::string& arguments) {
        return tavi::test::runTavi(dir_ / "settings", arguments);
    }
    static std::string sample(const char* name) { return tavi::test::sampleArgument(name); }

    fs::path dir_;
};

TEST_F(TableReportCommand, ListsAndTablesOfASampleMatchTheirGoldenText) {
    const auto lists =
        tavi("report utterance-lists --lists PQUES,PIMIT,PECODE " + sample("conversation-age5"));
    EXPECT_EQ(lists.status, 0) << lists.err;
    expectGolden(lists.out, "conversation-age5.utterance-lists.txt");
    const auto roots = tavi("report word-roots --sort alpha " + sample("story-age7"));
    EXPECT_EQ(roots.status, 0) << roots.err;
    expectGolden(roots.out, "story-age7.word-roots.txt");
}

TEST_F(TableReportCommand, FlagsChooseTheListsAndTheOrder) {
    const auto one = tavi("report utterance-lists --lists paban " + sample("story-age7"));
    ASSERT_EQ(one.status, 0) << one.err;
    EXPECT_NE(one.out.find("Abandoned Utterances ("), std::string::npos) << one.out;
    EXPECT_EQ(one.out.find("Questions ("), std::string::npos);

    const auto byFrequency = tavi("report word-roots " + sample("story-age7"));
    const auto withMazes = tavi("report word-roots --with-mazes " + sample("story-age7"));
    ASSERT_EQ(byFrequency.status, 0);
    ASSERT_EQ(withMazes.status, 0);
    EXPECT_NE(byFrequency.out, withMazes.out);
    EXPECT_NE(withMazes.out.find("All Words Including Mazes"), std::string::npos);
    EXPECT_EQ(tavi("report bound-morphemes --sort size " + sample("story-age7")).status, 2);

    const auto json = tavi("report word-lists --json " + sample("conversation-age5"));
    ASSERT_EQ(json.status, 0) << json.err;
    EXPECT_NE(json.out.find("\"report\": \"word-lists\""), std::string::npos) << json.out;
    EXPECT_NE(json.out.find("Conjunctions (Type)"), std::string::npos);
}

TEST_F(TableReportCommand, EveryKindIsWrittenAsPdfAndReadsBack) {
    if (std::system("command -v pdftotext >/dev/null 2>&1") != 0)
        GTEST_SKIP() << "pdftotext (poppler-utils) is not installed";
    for (const char* kind : kKinds) {
        SCOPED_TRACE(kind);
        const fs::path pdf = dir_ / (std::string(kind) + ".pdf");
        const auto text = tavi(std::string("report ") + kind + " " + sample("conversation-age5"));
        ASSERT_EQ(text.status, 0) << text.err;
        const auto run = tavi(std::string("report ") + kind + " -o '" + pdf.string() + "' " +
                              sample("conversation-age5"));
        if (run.status == 2 && run.err.find("unknown report format .pdf") != std::string::npos)
            GTEST_SKIP() << "built without the PDF writer";
        ASSERT_EQ(run.status, 0) << run.err;
        const fs::path txt = dir_ / "pdf.txt";
        ASSERT_EQ(std::system(
                      ("pdftotext -layout '" + pdf.string() + "' '" + txt.string() + "'").c_str()),
                  0);
        std::string read;
        ASSERT_TRUE(tavi::readFile(txt, read));
        const std::string title = text.out.substr(0, text.out.find('\n'));
        EXPECT_NE(read.find(title), std::string::npos) << title;
        EXPECT_NE(read.find("conversation-age5.tvi"), std::string::npos);
    }
}

} // namespace
