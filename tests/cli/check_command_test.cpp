// `tavi check` run as a program: the exact listing, the summary line, JSON,
// several files, and the exit statuses.
#include <gtest/gtest.h>

#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>

#include "../support/tavi_process.h"

namespace {

namespace fs = std::filesystem;

using Outcome = tavi::test::TaviRun;

// Runs `tavi check ARGS`, capturing stdout (stderr into `errFile`).
Outcome runCheck(const std::string& args, const fs::path& errFile) {
    return tavi::test::runShell(std::string(TAVI_BINARY) + " check " + args + " 2>" +
                                errFile.string());
}

class CheckCommand : public ::testing::Test {
protected:
    void SetUp() override {
        dir_ = fs::temp_directory_path() / ("tavi_check_cli_" + std::to_string(::getpid()));
        fs::create_directories(dir_);
    }
    void TearDown() override { fs::remove_all(dir_); }
    std::string file(const std::string& name, const std::string& bytes) {
        fs::path p = dir_ / name;
        std::ofstream(p, std::ios::binary) << bytes;
        return p.string();
    }
    std::string errors() const {
        std::ifstream in(dir_ / "stderr.txt");
        return std::string(std::istreambuf_iterator<char>(in), {});
    }
    fs::path errFile() const { return dir_ / "stderr.txt"; }
    fs::path dir_;
};

TEST_F(CheckCommand, CleanTranscript) {
    std::string clean = file("clean.tvi", "$ Child, Examiner\nC I go/ed home.\nE good.\n");
    Outcome run = runCheck(clean, errFile());
    EXPECT_EQ(run.out, "No errors or warnings found.\n");
    EXPECT_EQ(run.status, 0);
}

TEST_F(CheckCommand, ProblemLinesAndSummary) {
    std::string bad = file("bad.tvi", "$ Child, Examiner\nC I go [E@W]\nCI go.\nC I 1:01 go.\n");
    Outcome run = runCheck(bad, errFile());
    EXPECT_EQ(run.out, "E108 on entry 2: missing end of utterance punctuation.\n"
                       "E120 on entry 3: speaker id is not followed by blank space.\n"
                       "Warning #8 on entry 4: within-utterance pause time is 1 minute or longer.\n"
                       "2 errors and 1 warning found.\n");
    EXPECT_EQ(run.status, 1);
}

TEST_F(CheckCommand, SeveralFilesAndWarningsOnly) {
    std::string a = file("a.tvi", "$ Child\nC I 1:01 go.\n");
    std::string b = file("b.tvi", "$ Child\nC I go.\n");
    Outcome run = runCheck(a + " " + b, errFile());
    EXPECT_EQ(run.out, a +
                           "\nWarning #8 on entry 2: within-utterance pause time is 1 minute or "
                           "longer.\n" +
                           b + "\n1 warning found.\n");
    EXPECT_EQ(run.status, 0);
}

TEST_F(CheckCommand, Json) {
    std::string bad = file("q\"uote.tvi", "$ Child\nX go.\nC I 1:01 go.\n");
    Outcome run = runCheck("--json '" + bad + "'", errFile());
    std::string path = (dir_ / "q\\\"uote.tvi").string();
    EXPECT_EQ(run.out, "[\n  {\"file\": \"" + path +
                           "\", \"code\": 109, \"line\": 2, \"message\": \"invalid identifier "
                           "(X).\"},\n  {\"file\": \"" +
                           path +
                           "\", \"code\": -8, \"line\": 3, \"message\": \"within-utterance "
                           "pause time is 1 minute or longer.\"}\n]\n");
    EXPECT_EQ(run.status, 1);
    std::string clean = file("clean.tvi", "$ Child\n");
    EXPECT_EQ(runCheck("--json " + clean, errFile()).out, "[]\n");
}

TEST_F(CheckCommand, UnreadableFilesAndJunk) {
    std::string missing = (dir_ / "missing.tvi").string();
    Outcome run = runCheck(missing, errFile());
    EXPECT_EQ(run.status, 2);
    EXPECT_NE(errors().find("cannot read " + missing), std::string::npos);
    EXPECT_EQ(run.out, "1 transcript could not be read.\n");
    std::string clean = file("fine.tvi", "$ Child\nC hi.\n");
    Outcome mixed = runCheck(clean + " " + missing, errFile());
    EXPECT_EQ(mixed.status, 2);
    EXPECT_NE(mixed.out.find("(in the transcripts that could be read)\n1 transcript could not "
                             "be read.\n"),
              std::string::npos)
        << mixed.out;
    EXPECT_EQ(runCheck(dir_.string(), errFile()).status, 2);
    EXPECT_EQ(runCheck("", errFile()).status, 2);
    std::string junk;
    for (int i = 0; i < 5000; ++i)
        junk.push_back(static_cast<char>((i * 7919) & 0xFF));
    Outcome junkRun = runCheck(file("junk.tvi", junk), errFile());
    EXPECT_EQ(junkRun.status, 1);
    EXPECT_NE(junkRun.out.find("found.\n"), std::string::npos);
}

} // namespace
