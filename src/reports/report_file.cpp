// Saving report bytes with the reports' two failure messages.
#include "reports/report_file.h"

#include "base/file_io.h"

namespace tavi {

namespace {

std::string message(WriteStatus status) {
    switch (status) {
    case WriteStatus::Ok:
        return {};
    case WriteStatus::CannotOpen:
        return "cannot open file";
    case WriteStatus::WriteFailed:
        break;
    }
    return "cannot write to file";
}

void makeFolderOf(const std::filesystem::path& path) {
    std::error_code ec;
    if (path.has_parent_path())
        std::filesystem::create_directories(path.parent_path(), ec);
}

} // namespace

std::string saveReportBytes(const std::filesystem::path& path, std::string_view bytes) {
    makeFolderOf(path);
    return message(writeFileAtomic(path, bytes));
}

std::string
saveReportFiles(const std::vector<std::pair<std::filesystem::path, std::string>>& files) {
    std::vector<std::pair<std::filesystem::path, std::string_view>> views;
    for (const auto& [path, bytes] : files) {
        makeFolderOf(path);
        views.emplace_back(path, bytes);
    }
    return message(writeFilesAtomic(views));
}

} // namespace tavi
