// How the frame shows which window is active: the marked window frame, and
// the Find dialog that follows the active transcript.
#include <QDir>
#include <QFileInfo>
#include <QMdiSubWindow>
#include <string>

#include "app/tavi_app.h"
#include "app/tavi_doc.h"
#include "app/tavi_frame.h"
#include "base/file_io.h"
#include "base/text.h"

#include "app/child_frame.h"
#include "app/find_replace_dialog.h"
#include "app/main_frame.h"

namespace tavi::app {

void CMainFrame::followActiveWindow() {
    QMdiSubWindow* active = currentWindow();
    for (QMdiSubWindow* w : mdi_->subWindowList())
        if (auto* child = qobject_cast<CChildFrame*>(w))
            child->setMarkedActive(w == active);
    if (auto* find = findChild<CFindReplaceDialog*>())
        find->setEditor(activeEditor(), active ? active->windowTitle() : QString());
}

CTAVIFrame* CMainFrame::openRecentFile(const QString& path) {
    if (!QFileInfo::exists(path)) {
        app_.removeRecentFile(path);
        app_.prompter().inform("File not found:\n" + path.toStdString() +
                               "\n\nIt was removed from the list of recent files.");
        return nullptr;
    }
    return openTranscript(path);
}

namespace {

constexpr const char* kLayoutFileName = "tavi-gui.layout";

} // namespace

QString CMainFrame::layoutPath() const {
    return QDir(app_.setupDir()).filePath(QString::fromLatin1(kLayoutFileName));
}

// One line per item: "GEOMETRY" and "STATE" with Qt's own encodings in
// base64, then "OPEN" and the path of each saved transcript, front one last.
bool CMainFrame::saveLayout() const {
    std::string text = "# TAVI window layout\n";
    text += "GEOMETRY " + saveGeometry().toBase64().toStdString() + "\n";
    text += "STATE " + saveState().toBase64().toStdString() + "\n";
    QList<QMdiSubWindow*> windows = mdi_->subWindowList(QMdiArea::StackingOrder);
    for (QMdiSubWindow* w : windows)
        if (auto* transcript = qobject_cast<CTAVIFrame*>(w))
            if (!transcript->doc().path().isEmpty())
                text += "OPEN " + transcript->doc().path().toStdString() + "\n";
    return writeFileAtomic(layoutPath().toStdString(), text) == WriteStatus::Ok;
}

QStringList CMainFrame::restoreLayout() {
    std::string bytes;
    QStringList reopen;
    if (!readFile(layoutPath().toStdString(), bytes))
        return reopen;
    for (std::string_view line : splitLines(bytes)) {
        line = trim(line);
        const auto space = line.find(' ');
        if (space == std::string_view::npos)
            continue;
        const std::string_view key = line.substr(0, space);
        const std::string_view value = trim(line.substr(space + 1));
        const QByteArray data =
            QByteArray::fromBase64(QByteArray(value.data(), static_cast<qsizetype>(value.size())));
        if (key == "GEOMETRY")
            restoreGeometry(data);
        else if (key == "STATE")
            restoreState(data);
        else if (key == "OPEN") {
            const QString path =
                QString::fromUtf8(value.data(), static_cast<qsizetype>(value.size()));
            if (QFileInfo::exists(path) && !reopen.contains(path))
                reopen << path;
        }
    }
    return reopen;
}

} // namespace tavi::app
