// PDF writing needs a Qt GUI application object (fonts, painting). The
// desktop program has one; `tavi` and the tests get one here, on the
// offscreen platform when there is no display.
#pragma once

namespace tavi::qt {

// Makes sure a QGuiApplication exists. With no DISPLAY or WAYLAND_DISPLAY and
// no QT_QPA_PLATFORM set, the offscreen platform is chosen first.
void ensureGuiApplication();

} // namespace tavi::qt
