// The disk file uses positioned reads and writes (no shared file cursor), and
// the memory file mirrors its behaviour byte for byte.
#include "database/db_file.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tavi {

namespace {

// Locks the open file, waiting for another program's lock to go. A file that
// was replaced while we waited (a rewrite renames a new file over the old) is
// no longer the database: the caller opens the path again.
enum class LockResult { Locked, Busy, Replaced };

LockResult lockFile(int fd, const std::filesystem::path& path) {
    const int operation = LOCK_EX | LOCK_NB;
    constexpr int kStepMs = 20;
    int waited = 0;
    while (::flock(fd, operation) != 0) {
        if (errno != EWOULDBLOCK && errno != EINTR)
            return LockResult::Locked; // a file system without locks: go on unlocked
        if (waited >= DiskDbFile::kLockWaitMs)
            return LockResult::Busy;
        ::usleep(kStepMs * 1000);
        waited += kStepMs;
    }
    struct stat open {
    }, named{};
    if (::fstat(fd, &open) == 0 && ::stat(path.c_str(), &named) == 0 &&
        (open.st_ino != named.st_ino || open.st_dev != named.st_dev))
        return LockResult::Replaced;
    return LockResult::Locked;
}

} // namespace

std::unique_ptr<DiskDbFile> DiskDbFile::open(const std::filesystem::path& path, Mode mode,
                                             OpenFailure* failure) {
    auto fail = [&](OpenFailure why) {
        if (failure)
            *failure = why;
        return nullptr;
    };
    if (failure)
        *failure = OpenFailure::None;
    int flags = O_CLOEXEC;
    switch (mode) {
    case Mode::ReadOnly:
        flags |= O_RDONLY;
        break;
    case Mode::ReadWrite:
        flags |= O_RDWR;
        break;
    case Mode::Create:
        flags |= O_RDWR | O_CREAT | O_TRUNC;
        break;
    }
    for (int attempt = 0; attempt < 100; ++attempt) {
        int fd = ::open(path.c_str(), flags & ~O_TRUNC, 0666);
        if (fd < 0)
            return fail(OpenFailure::CannotOpen);
        struct stat st {};
        if (::fstat(fd, &st) != 0 || !S_ISREG(st.st_mode)) {
            ::close(fd);
            return fail(OpenFailure::CannotOpen);
        }
        if (mode == Mode::ReadOnly)
            return std::unique_ptr<DiskDbFile>(new DiskDbFile(fd));
        switch (lockFile(fd, path)) {
        case LockResult::Busy:
            ::close(fd);
            return fail(OpenFailure::Busy);
        case LockResult::Replaced:
            ::close(fd);
            continue;
        case LockResult::Locked:
            break;
        }
        if ((flags & O_TRUNC) && ::ftruncate(fd, 0) != 0) {
            ::close(fd);
            return fail(OpenFailure::CannotOpen);
        }
        return std::unique_ptr<DiskDbFile>(new DiskDbFile(fd));
    }
    return fail(OpenFailure::Busy);
}

DiskDbFile::~DiskDbFile() {
    ::close(fd_);
}

std::int64_t DiskDbFile::size() {
    struct stat st {};
    if (::fstat(fd_, &st) != 0)
        return -1;
    return static_cast<std::int64_t>(st.st_size);
}

bool DiskDbFile::readAt(std::int64_t pos, void* buffer, std::size_t n) {
    if (pos < 0)
        return false;
    auto* out = static_cast<char*>(buffer);
    while (n > 0) {
        ssize_t got = ::pread(fd_, out, n, static_cast<off_t>(pos));
        if (got <= 0)
            return false;
        out += got;
        pos += got;
        n -= static_cast<std::size_t>(got);
    }
    return true;
}

bool DiskDbFile::writeAt(std::int64_t pos, const void* buffer, std::size_t n) {
    if (pos < 0)
        return false;
    const auto* in = static_cast<const char*>(buffer);
    while (n > 0) {
        ssize_t put = ::pwrite(fd_, in, n, static_cast<off_t>(pos));
        if (put <= 0)
            return false;
        in += put;
        pos += put;
        n -= static_cast<std::size_t>(put);
    }
    return true;
}

bool DiskDbFile::truncate(std::int64_t size) {
    return size >= 0 && ::ftruncate(fd_, static_cast<off_t>(size)) == 0;
}

bool DiskDbFile::sync() {
    return ::fsync(fd_) == 0;
}

bool MemoryDbFile::readAt(std::int64_t pos, void* buffer, std::size_t n) {
    if (pos < 0 || static_cast<std::uint64_t>(pos) > bytes_.size() ||
        n > bytes_.size() - static_cast<std::size_t>(pos))
        return false;
    std::memcpy(buffer, bytes_.data() + pos, n);
    return true;
}

bool MemoryDbFile::writeAt(std::int64_t pos, const void* buffer, std::size_t n) {
    if (pos < 0)
        return false;
    auto start = static_cast<std::size_t>(pos);
    if (bytes_.size() < start + n)
        bytes_.resize(start + n, '\0');
    std::memcpy(bytes_.data() + start, buffer, n);
    return true;
}

bool MemoryDbFile::truncate(std::int64_t size) {
    if (size < 0)
        return false;
    bytes_.resize(static_cast<std::size_t>(size), '\0');
    return true;
}

} // namespace tavi
