// `tavi import-chat` as a user runs it: output places, the per-file report,
// and the exit status.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "base/file_io.h"
#include "support/tavi_process.h"

namespace tavi {
namespace {

namespace fs = std::filesystem;

class ImportCommand : public ::testing::Test {
protected:
    void SetUp() override {
        dir_ = fs::temp_directory_path() /
               ("tavi-import-" +
                std::string(::testing::UnitTest::GetInstance()->current_test_info()->name()));
        fs::remove_all(dir_);
        fs::create_directories(dir_ / "settings");
    }
    void TearDown() override { fs::remove_all(dir_); }
    void write(const fs::path& relative, const std::string& text) {
        fs::create_directories((dir_ / relative).parent_path());
        std::ofstream(dir_ / relative, std::ios::binary) << text;
    }
    test::TaviRun tavi(const std::string& arguments) {
        return test::runTavi(dir_ / "settings", arguments);
    }
    static std::string chat(const std::string& words) {
        return "@UTF8\n@Begin\n@Participants:\tCHI Target_Child, INV Investigator\n*CHI:\t" +
               words + " .\n%gra:\t1|0|ROOT\n*INV:\tgood .\n@End\n";
    }
    fs::path dir_;
};

TEST_F(ImportCommand, OutDirKeepsTheFoldersSoSameNamesDoNotCollide) {
    write("in/TD/B/523.cha", chat("one"));
    write("in/SLI/A/0noaudio/523.cha", chat("two"));
    std::string in = (dir_ / "in").string();
    test::TaviRun run = tavi("import-chat --out-dir '" + (dir_ / "out").string() + "' '" + in +
                             "/TD/B/523.cha' '" + in + "/SLI/A/0noaudio/523.cha'");
    EXPECT_EQ(run.status, 0) << run.err;
    std::string a, b;
    ASSERT_TRUE(readFile(dir_ / "out/TD/B/523.tvi", a));
    ASSERT_TRUE(readFile(dir_ / "out/SLI/A/0noaudio/523.tvi", b));
    EXPECT_TRUE(a.starts_with("\xEF\xBB\xBF$ Child, Investigator\n"));
    EXPECT_NE(a.find("C one.\n"), std::string::npos);
    EXPECT_NE(b.find("C two.\n"), std::string::npos);
    // One report line per file, with what was dropped.
    EXPECT_NE(run.err.find("TD/B/523.cha -> "), std::string::npos);
    EXPECT_NE(run.err.find(": 2 utterances; dropped 1 %gra tier lines\n"), std::string::npos)
        << run.err;
    // The result checks clean.
    test::TaviRun check = tavi("check '" + (dir_ / "out/TD/B/523.tvi").string() + "'");
    EXPECT_EQ(check.status, 0) << check.out;
}

TEST_F(ImportCommand, OutputBesideTheInputOrNamedAndUsageErrors) {
    write("story.cha", chat("hi"));
    std::string in = (dir_ / "story.cha").string();
    EXPECT_EQ(tavi("import-chat '" + in + "'").status, 0);
    EXPECT_TRUE(fs::exists(dir_ / "story.tvi"));
    EXPECT_EQ(tavi("import-chat -o '" + (dir_ / "named.tvi").string() + "' '" + in + "'").status,
              0);
    EXPECT_TRUE(fs::exists(dir_ / "named.tvi"));
    EXPECT_EQ(tavi("import-chat -o x.tvi '" + in + "' '" + in + "'").status, 2);
    EXPECT_EQ(tavi("import-chat '" + (dir_ / "missing.cha").string() + "'").status, 2);
    test::TaviRun run = tavi("import-chat --target FAT '" + in + "'");
    EXPECT_EQ(run.status, 1);
    EXPECT_NE(run.err.find("not imported: no speaker FAT in the file"), std::string::npos)
        << run.err;
}

} // namespace
} // namespace tavi
