// Helpers for the database tests: UTF-16LE bytes written out by hand (so the
// expectations do not come from the code under test), a file that fails on
// purpose, and a scratch folder.
#pragma once

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>

#include "database/db_file.h"

namespace tavi::test {

// ASCII text as UTF-16LE bytes.
inline std::string u16(std::string_view ascii) {
    std::string out;
    for (char c : ascii) {
        out.push_back(c);
        out.push_back('\0');
    }
    return out;
}

// One 160-byte block holding `ascii`, NUL-padded.
inline std::string block(std::string_view ascii) {
    std::string out = u16(ascii);
    out.resize(160, '\0');
    return out;
}

// A memory file whose writes fail once `budget` bytes have been written; the
// failing write still puts its first bytes down, as a full disk would.
class FailingFile final : public DbFile {
public:
    FailingFile(std::string bytes, std::size_t budget) : file_(std::move(bytes)), budget_(budget) {}
    const std::string& bytes() const { return file_.bytes(); }
    bool truncateWorks = false;

    std::int64_t size() override { return file_.size(); }
    bool readAt(std::int64_t pos, void* buffer, std::size_t n) override {
        return file_.readAt(pos, buffer, n);
    }
    bool writeAt(std::int64_t pos, const void* buffer, std::size_t n) override {
        std::size_t part = std::min(n, budget_);
        file_.writeAt(pos, buffer, part);
        budget_ -= part;
        return part == n;
    }
    bool truncate(std::int64_t size) override { return truncateWorks && file_.truncate(size); }
    bool sync() override { return true; }

private:
    MemoryDbFile file_;
    std::size_t budget_;
};

class ScratchDir {
public:
    ScratchDir() {
        std::random_device rd;
        path_ = std::filesystem::temp_directory_path() / ("tavi-db-" + std::to_string(rd()));
        std::filesystem::create_directories(path_);
    }
    ~ScratchDir() {
        std::error_code ec;
        std::filesystem::permissions(path_, std::filesystem::perms::owner_all,
                                     std::filesystem::perm_options::add, ec);
        std::filesystem::remove_all(path_, ec);
    }
    const std::filesystem::path& path() const { return path_; }
    std::filesystem::path write(const std::string& name, const std::string& text) const {
        std::filesystem::path p = path_ / name;
        std::ofstream(p, std::ios::binary) << text;
        return p;
    }

private:
    std::filesystem::path path_;
};

} // namespace tavi::test
