// The disk file uses positioned reads and writes (no shared file cursor), and
// the memory file mirrors its behaviour byte for byte.
#include "database/db_file.h"

#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tavi {

std::unique_ptr<DiskDbFile> DiskDbFile::open(const std::filesystem::path& path, Mode mode) {
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
    int fd = ::open(path.c_str(), flags, 0666);
    if (fd < 0)
        return nullptr;
    struct stat st {};
    if (::fstat(fd, &st) != 0 || !S_ISREG(st.st_mode)) {
        ::close(fd);
        return nullptr;
    }
    return std::unique_ptr<DiskDbFile>(new DiskDbFile(fd));
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
