// A fresh folder under the system's temporary folder for one test, removed
// when the test ends, so tests never touch the user's own settings.
#pragma once

#include <atomic>
#include <filesystem>
#include <string>
#include <unistd.h>

#include "base/file_io.h"

namespace tavi::test {

class TempFolder {
public:
    TempFolder() {
        static std::atomic<int> counter{0};
        path_ = std::filesystem::temp_directory_path() /
                ("tavi-settings-" + std::to_string(::getpid()) + "-" + std::to_string(counter++));
        std::filesystem::remove_all(path_);
        std::filesystem::create_directories(path_);
    }
    ~TempFolder() {
        std::error_code ec;
        std::filesystem::remove_all(path_, ec);
    }
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    const std::filesystem::path& path() const { return path_; }
    // The folder as the settings hold folders: with a trailing "/".
    std::string folder() const { return path_.string() + "/"; }

    std::filesystem::path write(const std::string& name, std::string_view bytes) const {
        std::filesystem::path file = path_ / name;
        std::filesystem::create_directories(file.parent_path());
        writeFileAtomic(file, bytes);
        return file;
    }
    std::string read(const std::string& name) const {
        std::string bytes;
        readFile(path_ / name, bytes);
        return bytes;
    }

private:
    std::filesystem::path path_;
};

inline std::string readTestData(const std::string& name) {
    std::string bytes;
    readFile(std::filesystem::path(TAVI_TEST_DATA_DIR) / "settings" / name, bytes);
    return bytes;
}

} // namespace tavi::test
