// Whole-file reading, and writing through a temporary file and a rename.
#include "base/file_io.h"

#include <cstdio>
#include <fstream>
#include <unistd.h>

namespace tavi {

bool readFile(const std::filesystem::path& path, std::string& bytes) {
    std::error_code ec;
    if (std::filesystem::is_directory(path, ec))
        return false;
    std::ifstream in(path, std::ios::binary);
    if (!in)
        return false;
    bytes.clear();
    char buffer[1 << 16];
    while (in.read(buffer, sizeof buffer) || in.gcount() > 0)
        bytes.append(buffer, static_cast<size_t>(in.gcount()));
    return !in.bad();
}

WriteStatus writeFileAtomic(const std::filesystem::path& path, std::string_view bytes) {
    std::filesystem::path temp = path;
    temp += ".tmp" + std::to_string(::getpid());
    std::FILE* out = std::fopen(temp.c_str(), "wb");
    if (!out)
        return WriteStatus::CannotOpen;
    bool ok = std::fwrite(bytes.data(), 1, bytes.size(), out) == bytes.size();
    ok = (std::fflush(out) == 0) && ok;
    ok = (::fsync(::fileno(out)) == 0) && ok;
    ok = (std::fclose(out) == 0) && ok;
    std::error_code ec;
    if (ok)
        std::filesystem::rename(temp, path, ec);
    if (!ok || ec) {
        std::filesystem::remove(temp, ec);
        return WriteStatus::WriteFailed;
    }
    return WriteStatus::Ok;
}

} // namespace tavi
