// Saving report bytes with the reports' two failure messages.
#include "reports/report_file.h"

#include "base/file_io.h"

namespace tavi {

std::string saveReportBytes(const std::filesystem::path& path, std::string_view bytes) {
    std::error_code ec;
    if (path.has_parent_path())
        std::filesystem::create_directories(path.parent_path(), ec);
    switch (writeFileAtomic(path, bytes)) {
    case WriteStatus::Ok:
        return {};
    case WriteStatus::CannotOpen:
        return "cannot open file";
    case WriteStatus::WriteFailed:
        break;
    }
    return "cannot write to file";
}

} // namespace tavi
