// `tavi batch` end to end: the data file and its key file beside it, the
// questions answered from the flags, and the batch error check.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <sys/wait.h>

#include "base/file_io.h"

namespace tavi {
namespace {

namespace fs = std::filesystem;

struct Outcome {
    int status = -1;
    std::string out;
    std::string err;
};

Outcome tavi(const std::string& args, const fs::path& dir) {
    fs::path out = dir / "stdout.txt";
    fs::path err = dir / "stderr.txt";
    std::string command = std::string(TAVI_BINARY) + " --settings-dir '" +
                          (dir / "settings").string() + "' " + args + " >'" + out.string() +
                          "' 2>'" + err.string() + "'";
    Outcome r;
    int raw = std::system(command.c_str());
    r.status = WIFEXITED(raw) ? WEXITSTATUS(raw) : -1;
    readFile(out, r.out);
    readFile(err, r.err);
    return r;
}

std::string data(const char* name) {
    return "'" + (fs::path(TAVI_TEST_DATA_DIR) / "batch" / name).string() + "'";
}

fs::path freshFolder(const char* name) {
    fs::path dir = fs::temp_directory_path() / name;
    fs::remove_all(dir);
    fs::create_directories(dir);
    return dir;
}

TEST(CliBatch, WritesTheDataAndKeyFilesAndLeavesOutErroneousTranscripts) {
    fs::path dir = freshFolder("tavi_cli_batch");
    fs::path out = dir / "study.csv";
    Outcome r = tavi("batch --variables MLUw,NTW --threads 2 -o '" + out.string() + "' " +
                         data("zoo.tvi") + " " + data("broken.tvi") + " " + data("park.tvi"),
                     dir);
    ASSERT_EQ(r.status, 0) << r.err;
    EXPECT_NE(r.err.find("broken.tvi contains errors. Would you like it included? [No]"),
              std::string::npos)
        << r.err;
    std::string bytes;
    ASSERT_TRUE(readFile(out, bytes));
    EXPECT_TRUE(bytes.starts_with("\xEF\xBB\xBF"
                                  "Filename,Speaker#,Speaker,AnalysisSet,WordBase,TranCut,MLUw,"
                                  "NTW\nzoo.tvi,1,Child,C&I Verbal Utts,"))
        << bytes;
    EXPECT_EQ(bytes.find("broken.tvi"), std::string::npos);
    EXPECT_NE(bytes.find("\npark.tvi,1,"), std::string::npos);
    std::string key;
    ASSERT_TRUE(readFile(dir / "study_RDFKey.csv", key));
    EXPECT_TRUE(key.starts_with("\xEF\xBB\xBFVariable,Description,Category\n"));
    EXPECT_NE(key.find("\nMLUw,MLU in Words,Standard Measures Report\n"), std::string::npos);

    r = tavi("batch --include-errors --speaker 2 --format tsv -o '" + out.string() + "' " +
                 data("broken.tvi"),
             dir);
    ASSERT_EQ(r.status, 0) << r.err;
    ASSERT_TRUE(readFile(out, bytes));
    EXPECT_NE(bytes.find("\nbroken.tvi\t2\tExaminer\t"), std::string::npos) << bytes;
}

TEST(CliBatch, BadUsage) {
    fs::path dir = freshFolder("tavi_cli_batch_usage");
    EXPECT_EQ(tavi("batch " + data("zoo.tvi"), dir).status, 2);
    EXPECT_EQ(tavi("batch --variables NoSuchColumn -o x.csv " + data("zoo.tvi"), dir).status, 2);
    EXPECT_EQ(tavi("batch --format xls -o x.csv " + data("zoo.tvi"), dir).status, 2);
    Outcome r =
        tavi("batch --selections '" + (dir / "none.SBT").string() + "' -o x.csv " + data("zoo.tvi"),
             dir);
    EXPECT_EQ(r.status, 2);
    EXPECT_NE(r.err.find("Unable to open Batch selection file ("), std::string::npos);
}

TEST(CliBatch, ErrorCheckCountsTranscriptsAndProblems) {
    fs::path dir = freshFolder("tavi_cli_batch_check");
    Outcome r = tavi("batch --check " + data("zoo.tvi") + " " + data("broken.tvi"), dir);
    EXPECT_EQ(r.status, 1);
    EXPECT_TRUE(r.out.starts_with("2 transcripts\n")) << r.out;
    EXPECT_NE(r.out.find("E108 on entry 3: "), std::string::npos) << r.out;
    EXPECT_TRUE(r.out.ends_with(" errors found.\n")) << r.out;
    r = tavi("batch --check " + data("zoo.tvi"), dir);
    EXPECT_EQ(r.status, 0);
    EXPECT_TRUE(r.out.ends_with("\nNo errors or warnings found.\n")) << r.out;
}

} // namespace
} // namespace tavi
