// A database file is appended to and patched in place, so the format code
// works on a random-access byte file. Behind this interface sit the real file,
// an in-memory file (tests, the fuzz target, conversion) and, in tests, files
// that fail on purpose to prove that a failed write leaves a readable database.
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>

namespace tavi {

class DbFile {
public:
    virtual ~DbFile() = default;
    // Current size in bytes; -1 when it cannot be found.
    virtual std::int64_t size() = 0;
    // Exactly `n` bytes at `pos`; false on a short read.
    virtual bool readAt(std::int64_t pos, void* buffer, std::size_t n) = 0;
    // All `n` bytes at `pos`, growing the file when needed; false on a short write.
    virtual bool writeAt(std::int64_t pos, const void* buffer, std::size_t n) = 0;
    virtual bool truncate(std::int64_t size) = 0;
    // Pushes written bytes to the disk.
    virtual bool sync() = 0;
};

// A file on disk.
class DiskDbFile final : public DbFile {
public:
    enum class Mode { ReadOnly, ReadWrite, Create };
    // Why an open failed.
    enum class OpenFailure { None, CannotOpen, Busy };
    // How long an open waits for another program's lock before giving up.
    static constexpr int kLockWaitMs = 5000;

    // Null when the file cannot be opened in that mode (Create makes or empties
    // it). Writers take an exclusive lock on the file, so two programs never
    // change a database at once: an open for writing waits up to kLockWaitMs
    // for the other writer, then fails as Busy. Readers take no lock: a record
    // becomes visible only once it is completely written, and a rewrite renames
    // a complete new file over the old, so a reader always sees a whole
    // database, also while the same program is writing to it.
    static std::unique_ptr<DiskDbFile> open(const std::filesystem::path& path, Mode mode,
                                            OpenFailure* failure = nullptr);
    ~DiskDbFile() override;

    std::int64_t size() override;
    bool readAt(std::int64_t pos, void* buffer, std::size_t n) override;
    bool writeAt(std::int64_t pos, const void* buffer, std::size_t n) override;
    bool truncate(std::int64_t size) override;
    bool sync() override;

private:
    explicit DiskDbFile(int fd) : fd_(fd) {}
    int fd_;
};

// A file held in memory.
class MemoryDbFile final : public DbFile {
public:
    MemoryDbFile() = default;
    explicit MemoryDbFile(std::string bytes) : bytes_(std::move(bytes)) {}

    const std::string& bytes() const { return bytes_; }

    std::int64_t size() override { return static_cast<std::int64_t>(bytes_.size()); }
    bool readAt(std::int64_t pos, void* buffer, std::size_t n) override;
    bool writeAt(std::int64_t pos, const void* buffer, std::size_t n) override;
    bool truncate(std::int64_t size) override;
    bool sync() override { return true; }

private:
    std::string bytes_;
};

} // namespace tavi
