// The gallery: each step runs a menu command as a person would, answers its
// dialogs from a polling timer (the commands run their dialogs modally),
// and takes its picture.
#include "app/screenshot_gallery.h"

#include <QApplication>
#include <QDeadlineTimer>
#include <QDir>
#include <QInputDialog>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QTextBlock>
#include <QTimer>
#include <cstdio>
#include <functional>

#include "app/batch_dialog.h"
#include "app/dbp_set_dialog.h"
#include "app/main_frame.h"
#include "app/normative_graph_dialog.h"
#include "app/tavi_doc.h"
#include "app/tavi_frame.h"
#include "app/tavi_view.h"

namespace tavi::app {
namespace {

QString describe(const QRect& r) {
    return QStringLiteral("%1,%2 %3x%4").arg(r.x()).arg(r.y()).arg(r.width()).arg(r.height());
}

class Gallery {
public:
    Gallery(CMainFrame& frame, const QString& dir) : frame_(frame), dir_(dir) {
        timer_.setInterval(20);
        QObject::connect(&timer_, &QTimer::timeout, [this] { answer(); });
    }

    int failures() const { return failures_; }

    // Runs a command; `handle` answers each modal dialog it opens and
    // returns false to leave a dialog to the default answer (OK).
    void run(const char* id, std::function<bool(QWidget*)> handle = {}) {
        QAction* act = frame_.action(QString::fromLatin1(id));
        frame_.updateCommands();
        if (!act || !act->isEnabled()) {
            std::printf("gallery: %s cannot be chosen now\n", id);
            ++failures_;
            return;
        }
        handle_ = std::move(handle);
        timer_.start();
        act->trigger();
        timer_.stop();
        handle_ = {};
        settle();
    }

    // A picture of the whole frame, after checking its document windows.
    void shot(const char* file) {
        settle();
        const QRect area = frame_.mdiArea().viewport()->rect();
        for (QMdiSubWindow* w : frame_.mdiArea().subWindowList())
            check(file, w->windowTitle(), w->geometry(), area, QStringLiteral("visible area"));
        save(frame_, file);
    }

    // A picture of a dialog alone, after checking it lies on the screen.
    void dialogShot(QWidget& dialog, const char* file) {
        settle();
        const QRect screen = dialog.screen()->availableGeometry();
        check(file, dialog.windowTitle(), dialog.frameGeometry(), screen, QStringLiteral("screen"));
        save(dialog, file);
    }

    void activateTranscript() {
        if (const QList<CTAVIFrame*> transcripts = frame_.transcriptFrames();
            !transcripts.isEmpty())
            frame_.mdiArea().setActiveSubWindow(transcripts.front());
        settle();
    }

    void settle() {
        const QDeadlineTimer until(300);
        while (!until.hasExpired())
            QApplication::processEvents(QEventLoop::AllEvents, 50);
    }

    void fail(const QString& what) {
        std::printf("gallery: %s\n", qPrintable(what));
        ++failures_;
    }

private:
    void check(const char* file, QString title, const QRect& geometry, const QRect& area,
               const QString& areaName) {
        title.remove(QStringLiteral("[*]"));
        const bool inside = area.contains(geometry);
        std::printf("gallery: %s: \"%s\" at %s in the %s %s: %s\n", file, qPrintable(title),
                    qPrintable(describe(geometry)), qPrintable(areaName),
                    qPrintable(describe(area)), inside ? "inside" : "OUTSIDE");
        if (!inside)
            ++failures_;
    }

    void save(QWidget& widget, const char* file) {
        const QString path = QDir(dir_).filePath(QString::fromLatin1(file));
        if (!widget.grab().save(path))
            fail(QStringLiteral("cannot write ") + path);
    }

    void answer() {
        QWidget* modal = QApplication::activeModalWidget();
        if (!modal || modal == busy_)
            return;
        busy_ = modal;
        QPointer<QWidget> target = modal;
        // Answered from a timer of its own: the answer may open dialogs in turn.
        QTimer::singleShot(0, [this, target] {
            if (!target)
                return;
            if (!handle_ || !handle_(target))
                accept(*target);
        });
    }

    static void accept(QWidget& w) {
        if (auto* box = qobject_cast<QMessageBox*>(&w)) {
            if (QPushButton* button = box->defaultButton())
                button->click();
            else
                box->accept();
        } else if (auto* dialog = qobject_cast<QDialog*>(&w)) {
            dialog->accept();
        } else {
            w.close();
        }
    }

    CMainFrame& frame_;
    QString dir_;
    QTimer timer_;
    QPointer<QWidget> busy_;
    std::function<bool(QWidget*)> handle_;
    int failures_ = 0;
};

} // namespace

int renderGallery(CMainFrame& frame, const QString& dir, const QString& database) {
    QDir().mkpath(dir);
    Gallery gallery(frame, dir);
    frame.setGeometry(QRect(QPoint(0, 0), QSize(1024, 700)));
    gallery.settle();
    if (frame.transcriptFrames().isEmpty()) {
        gallery.fail(QStringLiteral("no transcript open"));
        return 1;
    }

    // The editor, live checking having marked a line just typed.
    CTAVIFrame* transcript = frame.transcriptFrames().front();
    QTextDocument* text = transcript->doc().document();
    {
        QTextCursor end(text);
        end.movePosition(QTextCursor::End);
        if (!end.block().text().isEmpty())
            end.insertBlock();
        end.insertText(QStringLiteral("C and then the fox run/*ed [EW:ran to her home"));
        transcript->view().setTextCursor(end);
        transcript->view().ensureCursorVisible();
    }
    transcript->doc().checkNow();
    gallery.shot("transcript.png");
    text->undo();
    text->setModified(false);
    transcript->doc().checkNow();

    // Reports: the Standard Measures Report, a summary, a table of counts.
    gallery.activateTranscript();
    gallery.run("ID_ANAL_SMR");
    gallery.shot("report.png");
    gallery.activateTranscript();
    gallery.run("ID_ANAL_SYNTAX");
    gallery.shot("report-summary.png");
    gallery.activateTranscript();
    gallery.run("ID_ANAL_UTT_TYPES");
    gallery.shot("report-grid.png");

    // The database: choosing the samples, a report comparing the
    // transcript with them, and a normative graph.
    if (!database.isEmpty()) {
        gallery.activateTranscript();
        gallery.run("ID_DB_SELECT", [&gallery, &database](QWidget* w) {
            auto* dialog = qobject_cast<CDBPSetDialog*>(w);
            if (!dialog)
                return false;
            dialog->setDatabase(database);
            if (auto* span = dialog->findChild<QLineEdit*>(QStringLiteral("ageSpan")))
                span->setText(QStringLiteral("36"));
            gallery.dialogShot(*dialog, "database-dialog.png");
            dialog->accept();
            return true;
        });
        gallery.activateTranscript();
        gallery.run("ID_DB_SMR");
        gallery.shot("report-database.png");
        gallery.activateTranscript();
        gallery.run("ID_HELP_GRAPHS", [&gallery](QWidget* w) {
            auto* graph = qobject_cast<NormativeGraphDialog*>(w);
            if (!graph)
                return false;
            graph->resize(760, 520);
            gallery.dialogShot(*graph, "normative-graph-window.png");
            graph->reject();
            return true;
        });
    }

    // The batch of many transcripts into one table.
    gallery.run("ID_TOOLS_RDF", [&gallery](QWidget* w) {
        auto* batch = qobject_cast<CBatchDialog*>(w);
        if (!batch)
            return false;
        gallery.dialogShot(*batch, "batch-dialog.png");
        batch->reject();
        return true;
    });

    for (CTAVIFrame* f : frame.transcriptFrames())
        f->doc().document()->setModified(false);
    return gallery.failures() == 0 ? 0 : 1;
}

} // namespace tavi::app
