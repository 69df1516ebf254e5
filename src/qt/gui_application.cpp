// The one GUI application object of a command-line run.
#include "qt/gui_application.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <cstdlib>
#include <memory>
#include <string_view>

namespace tavi::qt {

namespace {

QtMessageHandler previousHandler = nullptr;

// Qt's note that XDG_RUNTIME_DIR is unset means nothing to a user of `tavi`.
void quietHandler(QtMsgType type, const QMessageLogContext& context, const QString& message) {
    if (message.startsWith(QStringLiteral("QStandardPaths: ")))
        return;
    if (previousHandler)
        previousHandler(type, context, message);
}

} // namespace

void ensureGuiApplication() {
    if (QCoreApplication::instance())
        return;
    const bool hasDisplay = std::getenv("DISPLAY") || std::getenv("WAYLAND_DISPLAY");
    if (!hasDisplay && !std::getenv("QT_QPA_PLATFORM"))
        ::setenv("QT_QPA_PLATFORM", "offscreen", 0);
    previousHandler = qInstallMessageHandler(quietHandler);
    // Qt keeps references to argc and argv for the application's lifetime.
    static int argc = 1;
    static char name[] = "tavi";
    static char* argv[] = {name, nullptr};
    static std::unique_ptr<QGuiApplication> app = std::make_unique<QGuiApplication>(argc, argv);
}

} // namespace tavi::qt
