// Writing a user's file: the old file stays whole until the new one is
// complete, its permissions and links are kept, a read-only file is refused,
// and files that belong together are replaced together or not at all.
#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>

#include "base/file_io.h"

namespace tavi {
namespace {

namespace fs = std::filesystem;

class FileWriting : public ::testing::Test {
protected:
    void SetUp() override {
        dir_ = fs::temp_directory_path() / ("tavi_file_io_" + std::to_string(::getpid()));
        fs::remove_all(dir_);
        fs::create_directories(dir_);
    }
    void TearDown() override {
        std::error_code ec;
        fs::permissions(dir_ / "locked.csv", fs::perms::owner_all, ec);
        fs::remove_all(dir_);
    }
    std::string text(const fs::path& p) {
        std::string bytes;
        EXPECT_TRUE(readFile(p, bytes)) << p;
        return bytes;
    }
    mode_t mode(const fs::path& p) {
        struct stat st {};
        ::stat(p.c_str(), &st);
        return st.st_mode & 07777;
    }
    size_t entries() {
        return static_cast<size_t>(std::distance(fs::directory_iterator(dir_), {}));
    }
    fs::path dir_;
};

TEST_F(FileWriting, KeepsPermissionsAndLinksAndLeavesNoTemporaries) {
    const fs::path file = dir_ / "data.csv";
    ASSERT_EQ(writeFileAtomic(file, "old"), WriteStatus::Ok);
    ::chmod(file.c_str(), 0640);
    ASSERT_EQ(writeFileAtomic(file, "new"), WriteStatus::Ok);
    EXPECT_EQ(text(file), "new");
    EXPECT_EQ(mode(file), 0640u);

    const fs::path link = dir_ / "latest.csv";
    fs::create_symlink("data.csv", link);
    ASSERT_EQ(writeFileAtomic(link, "through the link"), WriteStatus::Ok);
    EXPECT_TRUE(fs::is_symlink(link));
    EXPECT_EQ(text(file), "through the link");
    EXPECT_EQ(entries(), 2u);
}

TEST_F(FileWriting, RefusesAReadOnlyFileAndLeavesItAsItWas) {
    const fs::path file = dir_ / "locked.csv";
    ASSERT_EQ(writeFileAtomic(file, "keep me"), WriteStatus::Ok);
    ::chmod(file.c_str(), 0444);
    EXPECT_EQ(writeFileAtomic(file, "replaced"), WriteStatus::CannotOpen);
    EXPECT_EQ(text(file), "keep me");
    EXPECT_EQ(mode(file), 0444u);
    EXPECT_EQ(entries(), 1u);
}

TEST_F(FileWriting, FilesThatBelongTogetherAreReplacedTogetherOrNotAtAll) {
    const fs::path data = dir_ / "run.csv";
    const fs::path key = dir_ / "run_RDFKey.csv";
    ASSERT_EQ(writeFilesAtomic({{data, "data 1"}, {key, "key 1"}}), WriteStatus::Ok);
    EXPECT_EQ(text(data), "data 1");
    EXPECT_EQ(text(key), "key 1");

    ::chmod(key.c_str(), 0444);
    EXPECT_NE(writeFilesAtomic({{data, "data 2"}, {key, "key 2"}}), WriteStatus::Ok);
    EXPECT_EQ(text(data), "data 1");
    EXPECT_EQ(text(key), "key 1");
    ::chmod(key.c_str(), 0644);

    EXPECT_NE(writeFilesAtomic({{data, "data 3"}, {dir_ / "missing" / "key.csv", "key 3"}}),
              WriteStatus::Ok);
    EXPECT_EQ(text(data), "data 1");
    EXPECT_EQ(entries(), 2u);
}

} // namespace
} // namespace tavi
