// Whole-file reading, and writing through a temporary file and a rename.
#include "base/file_io.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <fstream>

namespace tavi {

namespace fs = std::filesystem;

bool readFile(const fs::path& path, std::string& bytes) {
    std::error_code ec;
    if (fs::is_directory(path, ec))
        return false;
    std::ifstream in(path, std::ios::binary);
    if (!in)
        return false;
    bytes.clear();
    // One allocation of the file's size when it is known (a growing string
    // would copy a large transcript several times and hold up to twice it).
    if (auto size = fs::file_size(path, ec); !ec && size > 0) {
        bytes.resize(static_cast<size_t>(size));
        in.read(bytes.data(), static_cast<std::streamsize>(size));
        bytes.resize(static_cast<size_t>(in.gcount()));
        if (in.bad())
            return false;
        if (!in.eof() && in.peek() == std::ifstream::traits_type::eof())
            return true;
        in.clear(in.rdstate() & ~std::ios::failbit);
    }
    char buffer[1 << 16];
    while (in.read(buffer, sizeof buffer) || in.gcount() > 0)
        bytes.append(buffer, static_cast<size_t>(in.gcount()));
    return !in.bad();
}

namespace {

// The file a path finally names: symbolic links followed, relative links
// taken from the link's folder.
fs::path finalTarget(fs::path path) {
    std::error_code ec;
    for (int hops = 0; hops < 40 && fs::is_symlink(path, ec); ++hops) {
        fs::path link = fs::read_symlink(path, ec);
        if (ec)
            break;
        path = link.is_absolute() ? link : path.parent_path() / link;
    }
    return path;
}

// The process's file creation mask, read without changing it.
mode_t creationMask() {
    std::ifstream status("/proc/self/status");
    std::string line;
    while (std::getline(status, line))
        if (line.rfind("Umask:", 0) == 0)
            return static_cast<mode_t>(std::stoul(line.substr(6), nullptr, 8));
    return 022;
}

bool writeAll(int fd, std::string_view bytes) {
    while (!bytes.empty()) {
        ssize_t n = ::write(fd, bytes.data(), bytes.size());
        if (n < 0 && errno == EINTR)
            continue;
        if (n <= 0)
            return false;
        bytes.remove_prefix(static_cast<size_t>(n));
    }
    return true;
}

void syncFolder(const fs::path& folder) {
    int fd = ::open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY);
    if (fd >= 0) {
        ::fsync(fd);
        ::close(fd);
    }
}

// One file being replaced: its temporary, written and synced, waiting for
// the rename.
class PendingFile {
public:
    explicit PendingFile(const fs::path& path) : target_(finalTarget(path)) {}
    PendingFile(const PendingFile&) = delete;
    PendingFile& operator=(const PendingFile&) = delete;
    PendingFile(PendingFile&& other) noexcept
        : target_(std::move(other.target_)), temp_(std::move(other.temp_)) {
        other.temp_.clear();
    }
    ~PendingFile() { discard(); }

    WriteStatus write(std::string_view bytes) {
        struct stat existing {};
        const bool exists = ::stat(target_.c_str(), &existing) == 0;
        if (exists && (S_ISDIR(existing.st_mode) || (existing.st_mode & 0222) == 0 ||
                       ::access(target_.c_str(), W_OK) != 0))
            return WriteStatus::CannotOpen; // read-only, even for the administrator
        std::string name =
            (target_.parent_path() / ("." + target_.filename().string() + ".XXXXXX")).string();
        int fd = ::mkstemp(name.data());
        if (fd < 0)
            return WriteStatus::CannotOpen;
        temp_ = name;
        const mode_t mode = exists ? (existing.st_mode & 07777) : (0666 & ~creationMask());
        bool ok = ::fchmod(fd, mode) == 0;
        ok = writeAll(fd, bytes) && ok;
        ok = ::fsync(fd) == 0 && ok;
        ok = ::close(fd) == 0 && ok;
        return ok ? WriteStatus::Ok : WriteStatus::WriteFailed;
    }

    bool commit() {
        std::error_code ec;
        fs::rename(temp_, target_, ec);
        if (ec)
            return false;
        temp_.clear();
        syncFolder(target_.parent_path());
        return true;
    }

private:
    void discard() {
        if (temp_.empty())
            return;
        std::error_code ec;
        fs::remove(temp_, ec);
        temp_.clear();
    }

    fs::path target_;
    fs::path temp_;
};

} // namespace

WriteStatus writeFileAtomic(const fs::path& path, std::string_view bytes) {
    return writeFilesAtomic({{path, bytes}});
}

WriteStatus writeFilesAtomic(const std::vector<std::pair<fs::path, std::string_view>>& files) {
    std::vector<PendingFile> pending;
    pending.reserve(files.size());
    for (const auto& [path, bytes] : files) {
        pending.emplace_back(path);
        if (WriteStatus status = pending.back().write(bytes); status != WriteStatus::Ok)
            return status;
    }
    for (PendingFile& file : pending)
        if (!file.commit())
            return WriteStatus::WriteFailed;
    return WriteStatus::Ok;
}

} // namespace tavi
