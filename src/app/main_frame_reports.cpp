// Report windows: saving, printing to PDF and the PDF batch.
#include "app/main_frame.h"
#include "app/rept_frame.h"

namespace tavi::app {

void CMainFrame::reportSave(bool) {}

} // namespace tavi::app
