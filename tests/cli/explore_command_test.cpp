// `tavi explore` run as a program: the list, count and JSON outputs, codes
// inserted and deleted in place with a backup, separate transcripts, the
// policy for transcripts with errors, and bad usage.
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

class ExploreCommand : public ::testing::Test {
protected:
    void SetUp() override {
        dir_ = fs::temp_directory_path() / ("tavi_explore_cli_" + std::to_string(::getpid()));
        fs::remove_all(dir_);
        fs::create_directories(dir_ / "user");
        fs::create_directories(dir_ / "docs");
    }
    void TearDown() override { fs::remove_all(dir_); }

    // Runs `tavi explore ARGS` with settings and backups inside the test folder.
    Outcome explore(const std::string& args) {
        std::string command = "TAVI_DATA_USER=" + (dir_ / "user").string() +
                              " XDG_DOCUMENTS_DIR=" + (dir_ / "docs").string() + " " + TAVI_BINARY +
                              " explore " + args + " 2>" + (dir_ / "stderr.txt").string();
        return tavi::test::runShell(command);
    }
    std::string file(const std::string& name, const std::string& bytes) {
        fs::path p = dir_ / name;
        std::ofstream(p, std::ios::binary) << bytes;
        return p.string();
    }
    static std::string read(const fs::path& p) {
        std::ifstream in(p, std::ios::binary);
        return std::string(std::istreambuf_iterator<char>(in), {});
    }
    std::string errors() const { return read(dir_ / "stderr.txt"); }
    fs::path dir_;
};

constexpr const char* kSample = "$ Child, Examiner\n"
                                "E what did you see?\n"
                                "C I saw a big dog.\n"
                                "C the dog run/3s [EU].\n"
                                "C yes.\n";

TEST_F(ExploreCommand, ListCountAndJson) {
    const std::string t = file("a.tvi", kSample);
    Outcome list = explore("--word 'dog*' --type one-word " + t);
    EXPECT_EQ(list.status, 0) << errors();
    EXPECT_EQ(list.out, "3: C I saw a big dog.\n"
                        "    found: dog\n"
                        "4: C the dog run/3s [EU].\n"
                        "    found: dog\n"
                        "5: C yes.\n"
                        "3 of 3 utterances found.\n");
    Outcome all = explore("--word 'dog*' --code EU --all " + t);
    EXPECT_EQ(all.out,
              "4: C the dog run/3s [EU].\n    found: dog, [EU]\n1 of 3 utterances found.\n");
    Outcome count = explore("--count --min-length 4 " + t);
    EXPECT_EQ(count.out, t + "\t1\n");
    Outcome json = explore("--json --speaker 2 " + t);
    EXPECT_EQ(json.out, "[\n  {\"file\": \"" + t +
                            "\", \"line\": 2, \"speaker\": 2, \"text\": \"E what did you see?\", "
                            "\"items\": []}\n]\n");
}

TEST_F(ExploreCommand, InsertThenDeleteInPlaceWithABackup) {
    const std::string t = file("a.tvi", kSample);
    Outcome inserted = explore("--word dog --insert-code BIG --code-place word " + t);
    EXPECT_EQ(inserted.status, 0) << errors();
    EXPECT_EQ(inserted.out, t + ": 2 codes inserted\n");
    EXPECT_EQ(read(t), std::string("\xEF\xBB\xBF") + "$ Child, Examiner\nE what did you see?\n"
                                                     "C I saw a big dog[BIG].\n"
                                                     "C the dog[BIG] run/3s [EU].\nC yes.\n");
    EXPECT_EQ(read(dir_ / "docs" / "a.$VI"), kSample);
    Outcome deleted = explore("--delete-code BIG " + t);
    EXPECT_EQ(deleted.out, t + ": 2 codes deleted\n");
    EXPECT_EQ(read(t), std::string("\xEF\xBB\xBF") + kSample);
    Outcome none = explore("--delete-code 'E*' --in-matches --type one-word " + t);
    EXPECT_EQ(none.out, t + ": 0 codes deleted\n");
}

TEST_F(ExploreCommand, SeparateTranscriptsGoToTheFolder) {
    const std::string t = file("a.tvi", kSample);
    Outcome saved =
        explore("--word dog --save-separate " + (dir_ / "out").string() + " --prefix dog_ " + t);
    EXPECT_EQ(saved.status, 0) << errors();
    EXPECT_EQ(read(dir_ / "out" / "dog_a.tvi"),
              "\xEF\xBB\xBF$ Child, Examiner\nC I saw a big dog.\nC the dog run/3s [EU].\n");
}

TEST_F(ExploreCommand, TranscriptsWithErrorsAreLeftAloneUnlessAskedFor) {
    const std::string bad = file("bad.tvi", "$ Child\nC a dog\nC the dog.\n");
    Outcome list = explore("--word dog " + bad);
    EXPECT_EQ(list.status, 1);
    EXPECT_EQ(list.out, "");
    Outcome listed = explore("--include-errors --word dog " + bad);
    EXPECT_EQ(listed.status, 0);
    EXPECT_NE(listed.out.find("3: C the dog."), std::string::npos);

    Outcome refused = explore("--word dog --insert-code X " + bad);
    EXPECT_EQ(refused.status, 1);
    EXPECT_NE(errors().find("--force"), std::string::npos);
    EXPECT_EQ(read(bad), "$ Child\nC a dog\nC the dog.\n");
    Outcome forced = explore("--force --word dog --insert-code X " + bad);
    EXPECT_EQ(forced.status, 0);
    EXPECT_NE(read(bad).find("C the dog [X]."), std::string::npos);
}

TEST_F(ExploreCommand, BadUsage) {
    const std::string t = file("a.tvi", kSample);
    EXPECT_EQ(explore("--list --count " + t).status, 2);
    EXPECT_EQ(explore("--type sentence " + t).status, 2);
    EXPECT_EQ(explore("--speaker 3 " + t).status, 2);
    EXPECT_EQ(explore("--min-length x " + t).status, 2);
    EXPECT_EQ(explore("").status, 2);
    EXPECT_EQ(explore((dir_ / "missing.tvi").string()).status, 2);
}

} // namespace
