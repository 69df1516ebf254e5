// `tavi batch --save-selections` and `--save-defaults`: the selections in
// force (defaults, a selection file, --speaker and --variables) are written to
// a selection file or as the program default, and a later batch reads them.
#include <gtest/gtest.h>

#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

namespace {

namespace fs = std::filesystem;

class BatchSave : public ::testing::Test {
protected:
    void SetUp() override {
        dir_ = fs::temp_directory_path() / ("tavi_batch_save_" + std::to_string(::getpid()));
        fs::remove_all(dir_);
        fs::create_directories(dir_);
    }
    void TearDown() override { fs::remove_all(dir_); }
    // Runs `tavi batch ARGS` with its settings in the test folder; the exit status.
    int batch(const std::string& args) {
        const std::string command = "TAVI_DATA_USER=" + (dir_ / "user").string() +
                                    " XDG_DOCUMENTS_DIR=" + dir_.string() + " " + TAVI_BINARY +
                                    " batch " + args + " 2>" + (dir_ / "stderr.txt").string();
        const int status = std::system(command.c_str());
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }
    static std::string read(const fs::path& p) {
        std::ifstream in(p, std::ios::binary);
        return std::string(std::istreambuf_iterator<char>(in), {});
    }
    fs::path dir_;
};

TEST_F(BatchSave, SelectionsInForceGoToAFileAndTheDefaults) {
    const fs::path sbt = dir_ / "pick.SBT";
    ASSERT_EQ(batch("--variables MLUw --speaker 2 --save-selections " + sbt.string()), 0)
        << read(dir_ / "stderr.txt");
    const std::string saved = read(sbt);
    EXPECT_NE(saved.find("SPEAKER 2ND\n"), std::string::npos) << saved;
    EXPECT_NE(saved.find("EXPLSELUTTS_NO\n"), std::string::npos);

    ASSERT_EQ(batch("--selections " + sbt.string() + " --save-defaults"), 0)
        << read(dir_ / "stderr.txt");
    const std::string ini = read(dir_ / "user" / "TAVI.ini");
    EXPECT_NE(ini.find("BATCH SPEAKER 2ND\n"), std::string::npos) << ini;

    // A later batch without a selection file writes the saved default's columns.
    std::ofstream(dir_ / "a.tvi") << "$ Child, Examiner\nC I go/ed home.\nE ok.\n";
    const fs::path out = dir_ / "out.csv";
    ASSERT_EQ(batch("-o " + out.string() + " " + (dir_ / "a.tvi").string()), 0);
    const std::string rows = read(out);
    EXPECT_NE(rows.find("MLUw"), std::string::npos) << rows;
    EXPECT_NE(rows.find(",2,"), std::string::npos) << rows; // the 2nd speaker's row
}

} // namespace
