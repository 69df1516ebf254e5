// PDF output through the core's PDF page writer.
#include "app/report_pdf.h"

#include "base/file_io.h"

namespace tavi::app {

bool writePdf(const std::vector<const Report*>& reports, const QString& path,
              const qt::PdfPageSetup& setup) {
    return writeFileAtomic(path.toStdString(), qt::reportsToPdf(reports, setup)) == WriteStatus::Ok;
}

} // namespace tavi::app
