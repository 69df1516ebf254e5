// Every command reaches the analysis through one session: the date format of
// the settings holds in `tavi check` and `tavi batch --check` alike, a
// transcript with errors is refused by every analysing command unless
// --include-errors is given.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <unistd.h>

#include "support/tavi_process.h"

namespace tavi {
namespace {

namespace fs = std::filesystem;

const fs::path kSamples = fs::path(TAVI_TEST_DATA_DIR) / ".." / ".." / "data" / "samples";

class FrontEnds : public ::testing::Test {
protected:
    void SetUp() override {
        dir_ = fs::temp_directory_path() / ("tavi_front_ends_" + std::to_string(::getpid()));
        fs::remove_all(dir_);
        fs::create_directories(dir_);
    }
    void TearDown() override { fs::remove_all(dir_); }
    void settings(const std::string& ini) { std::ofstream(dir_ / "TAVI.ini") << ini; }
    std::string file(const std::string& name, const std::string& text) {
        std::ofstream(dir_ / name) << text;
        return "'" + (dir_ / name).string() + "'";
    }
    test::TaviRun tavi(const std::string& arguments) { return test::runTavi(dir_, arguments); }

    fs::path dir_;
};

// The problem lines of a listing, without file names and summaries.
std::string problemLines(const std::string& listing) {
    std::string lines;
    size_t start = 0;
    while (start < listing.size()) {
        size_t end = listing.find('\n', start);
        const std::string line = listing.substr(start, end - start);
        if (line.rfind("E", 0) == 0 || line.rfind("Warning #", 0) == 0)
            lines += line + "\n";
        start = end == std::string::npos ? listing.size() : end + 1;
    }
    return lines;
}

TEST_F(FrontEnds, CheckAndBatchCheckAgreeUnderEveryDateSetting) {
    const std::string samples = "'" + (kSamples / "conversation-age5.tvi").string() + "' '" +
                                (kSamples / "expository-age10.tvi").string() + "' '" +
                                (kSamples / "story-age7.tvi").string() + "'";
    for (const std::string ini :
         {"", "LANGUAGE DATEDM\nLANGUAGE DATESEP /\n", "LANGUAGE DATEMD\nLANGUAGE DATESEP .\n"}) {
        settings(ini);
        const test::TaviRun check = tavi("check " + samples);
        const test::TaviRun batch = tavi("batch --check " + samples);
        EXPECT_EQ(check.status, 0) << ini;
        EXPECT_EQ(batch.status, 0) << ini;
        EXPECT_EQ(problemLines(check.out), problemLines(batch.out)) << ini;
        const bool dashes = ini.empty();
        EXPECT_EQ(check.out.find("incorrect + DOB") == std::string::npos, dashes) << ini;
    }
}

TEST_F(FrontEnds, ATranscriptWithErrorsIsRefusedUnlessIncludeErrorsIsGiven) {
    const std::string bad = file("bad.tvi", "$ Child, Examiner\nC I go/ed home.\nQ hello.\n");
    for (const std::string command : {"measures", "report smr", "report types"}) {
        const test::TaviRun refused = tavi(command + " " + bad);
        EXPECT_EQ(refused.status, 1) << command;
        EXPECT_TRUE(refused.out.empty()) << command;
        EXPECT_NE(refused.err.find("E109 on entry 3"), std::string::npos) << refused.err;
        EXPECT_NE(refused.err.find("contains errors; correct them (see tavi check) or give "
                                   "--include-errors"),
                  std::string::npos)
            << refused.err;
        const test::TaviRun included = tavi(command + " --include-errors " + bad);
        EXPECT_EQ(included.status, 0) << command << included.err;
        EXPECT_FALSE(included.out.empty()) << command;
    }
}

} // namespace
} // namespace tavi
