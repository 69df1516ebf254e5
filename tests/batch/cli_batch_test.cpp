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
    EXPECT_EQ(tavi("batch --quote doubled -o x.csv " + data("zoo.tvi"), dir).status, 2);
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

// Header values holding commas and double quotes: with --quote rfc4180 a
// standard CSV reader (Python's csv module) reads every row of the data and key
// files back with the heading row's width and the cells as the transcript has
// them; the plain default still leaves inner quotes undoubled.
TEST(CliBatch, Rfc4180QuotingReadsBackWithPythonsCsvModule) {
    if (std::system("python3 -c 'import csv' >/dev/null 2>&1") != 0)
        GTEST_SKIP() << "python3 is not installed";
    fs::path dir = freshFolder("tavi_cli_batch_quote");
    std::string transcript;
    ASSERT_TRUE(readFile(fs::path(TAVI_TEST_DATA_DIR) / "batch" / "zoo.tvi", transcript));
    const std::string name = "+ Name: Ana\n";
    ASSERT_NE(transcript.find(name), std::string::npos);
    transcript.replace(transcript.find(name), name.size(),
                       "+ Name: \"Jo\", Smith\n+ Examiner: Dr \"Lee\"\n+ School: Hill, Road\n");
    ASSERT_EQ(writeFileAtomic(dir / "quoted.tvi", transcript), WriteStatus::Ok);
    const fs::path sbt = dir / "q.SBT";
    ASSERT_EQ(
        writeFileAtomic(
            sbt,
            "XTEXT NA\nXINT -9\nXVAL -9\nGENINFO 0\nPLUSLINE 1\nPLUSLINE 11\nPLUSLIST School\n"),
        WriteStatus::Ok);
    const std::string files = "'" + (dir / "quoted.tvi").string() + "' " + data("park.tvi");
    const fs::path out = dir / "study.csv";

    Outcome r = tavi("batch --quote rfc4180 --all --selections '" + sbt.string() + "' -o '" +
                         out.string() + "' " + files,
                     dir);
    ASSERT_EQ(r.status, 0) << r.err;
    ASSERT_EQ(writeFileAtomic(dir / "read.py",
                              "import csv, sys\n"
                              "for path in sys.argv[1:]:\n"
                              "    rows = list(csv.reader(open(path, encoding='utf-8-sig', "
                              "newline='')))\n"
                              "    bad = [i for i, row in enumerate(rows) if len(row) != "
                              "len(rows[0])]\n"
                              "    print(len(rows), 'rows, ragged:', bad)\n"
                              "    print('\\n'.join(c for row in rows for c in row if '\"' in c "
                              "or ',' in c))\n"),
              WriteStatus::Ok);
    const std::string command = "python3 '" + (dir / "read.py").string() + "' '" + out.string() +
                                "' '" + (dir / "study_RDFKey.csv").string() + "' >'" +
                                (dir / "read.txt").string() + "'";
    ASSERT_EQ(std::system(command.c_str()), 0);
    std::string read;
    ASSERT_TRUE(readFile(dir / "read.txt", read));
    // A heading row and a row for each speaker of the two transcripts.
    EXPECT_TRUE(read.starts_with("5 rows, ragged: []\n")) << read;
    EXPECT_NE(read.find("\n\"Jo\", Smith\n"), std::string::npos) << read;
    EXPECT_NE(read.find("\nDr \"Lee\"\n"), std::string::npos) << read;
    EXPECT_NE(read.find("\nHill, Road\n"), std::string::npos) << read;
    const std::string even = " rows, ragged: []\n";
    const size_t keyLine = read.rfind(" rows, ragged: ");
    ASSERT_GT(keyLine, 1U) << read;
    EXPECT_EQ(read.compare(keyLine, even.size(), even), 0) << "key file: " << read;

    r = tavi("batch --selections '" + sbt.string() + "' -o '" + out.string() + "' " + files, dir);
    ASSERT_EQ(r.status, 0) << r.err;
    std::string bytes;
    ASSERT_TRUE(readFile(out, bytes));
    EXPECT_NE(bytes.find(",\"\"Jo\", Smith\",Dr \"Lee\",\"Hill, Road\""), std::string::npos)
        << bytes;
}

} // namespace
} // namespace tavi
