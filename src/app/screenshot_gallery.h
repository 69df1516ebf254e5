// The gallery of pictures for the documentation ("tavi-gui --screenshot
// DIR"): the desktop program driven through its own menu commands, a
// picture taken at each step, and every window's geometry checked against
// the area it must lie in (a document window inside the frame's visible
// area, a dialog on the screen).
#pragma once

#include <QString>

namespace tavi::app {

class CMainFrame;

// Renders the gallery from the first open transcript into `dir`, printing
// one line per window checked. `database` is a reference database for the
// database pictures (skipped when empty). Returns 0, or 1 when a window lay
// outside its area or a step could not be done.
int renderGallery(CMainFrame& frame, const QString& dir, const QString& database);

} // namespace tavi::app
