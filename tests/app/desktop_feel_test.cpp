// How the desktop program behaves as a window on the desktop: the page of
// saved PDF files against printing, the marked active window, dialogs as
// wide as their titles with keyboard mnemonics, recent files, the window
// layout kept between runs, and notation colours on a dark colour scheme.
#include <QAbstractButton>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinter>
#include <QProcess>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QTextDocument>

#include "app/dialog_polish.h"
#include "app/find_replace_dialog.h"
#include "app/notation_highlighter.h"
#include "app/page_setup_dialog.h"
#include "app/palette_colours.h"
#include "app/rept_frame.h"
#include "app/save_report_dialog.h"
#include "app/smr_variables_dialog.h"
#include "app/tavi_doc.h"
#include "app/tavi_frame.h"
#include "app/tavi_view.h"
#include "app_fixture.h"

namespace tavi::app::test {
namespace {

QString runTool(const QString& tool, const QStringList& args) {
    QProcess p;
    p.start(tool, args);
    if (!p.waitForFinished(20000))
        return QString();
    return QString::fromUtf8(p.readAllStandardOutput());
}

// "612 x 792 pts (letter)" from pdfinfo, as the page's width and height.
QSizeF pdfPageSize(const QString& path) {
    const QString info = runTool(QStringLiteral("pdfinfo"), {path});
    const QRegularExpressionMatch m =
        QRegularExpression(QStringLiteral(R"(Page size:\s+([0-9.]+) x ([0-9.]+) pts)")).match(info);
    return m.hasMatch() ? QSizeF(m.captured(1).toDouble(), m.captured(2).toDouble()) : QSizeF();
}

// The left edge of the first text on page 1, in points, from pdftotext's
// bounding boxes: the page's left margin.
double leftmostText(const QString& path) {
    const QString html =
        runTool(QStringLiteral("pdftotext"),
                {QStringLiteral("-bbox"), QStringLiteral("-f"), QStringLiteral("1"),
                 QStringLiteral("-l"), QStringLiteral("1"), path, QStringLiteral("-")});
    double least = 1e9;
    const QRegularExpression word(QStringLiteral(R"re(<word xMin="([0-9.]+)")re"));
    for (auto it = word.globalMatch(html); it.hasNext();)
        least = std::min(least, it.next().captured(1).toDouble());
    return least;
}

class DesktopFeelTest : public AppTest {
protected:
    CReptFrame* standardMeasuresReport() {
        if (!frame->openTranscript(dataFile("park.tvi")))
            return nullptr;
        whenModal([](QWidget* w) { qobject_cast<QDialog*>(w)->accept(); });
        run("ID_ANAL_SMR");
        return frame->activeReportFrame();
    }
    void savePdf(const QString& path) {
        whenModal([](QWidget* w) {
            auto* dialog = qobject_cast<CSaveReportTypeRTF*>(w);
            ASSERT_NE(dialog, nullptr);
            dialog->findChild<QRadioButton*>(QStringLiteral("choicePdf"))->setChecked(true);
            dialog->accept();
        });
        chooseFile(path);
        run("ID_FILE_SAVE");
    }
    QMenu* menu(const QString& title) {
        for (QAction* a : frame->menuBar()->actions())
            if (a->text() == title)
                return a->menu();
        return nullptr;
    }
};

TEST_F(DesktopFeelTest, PrintingLeavesThePdfPageAloneAndPrintsLikeThePdf) {
    CReptFrame* report = standardMeasuresReport();
    ASSERT_NE(report, nullptr);
    savePdf(tempPath("before.pdf"));
    const QSizeF letter = pdfPageSize(tempPath("before.pdf"));
    EXPECT_NEAR(letter.width(), 612, 1);
    EXPECT_NEAR(letter.height(), 792, 1);
    const double margin = leftmostText(tempPath("before.pdf"));
    EXPECT_NEAR(margin, 15 / 25.4 * 72, 3) << "15 mm";

    // Print Setup without a system printer: the program's own dialog, where
    // A4 is chosen for the printer.
    whenModal([](QWidget* w) {
        auto* dialog = qobject_cast<CPageSetupDialog*>(w);
        ASSERT_NE(dialog, nullptr) << w->metaObject()->className();
        auto* paper = dialog->findChild<QComboBox*>(QStringLiteral("Paper"));
        paper->setCurrentIndex(paper->findText(QStringLiteral("A4")));
        dialog->accept();
    });
    run("ID_FILE_PRINT_SETUP");

    // The print dialog, cancelled, changes nothing either.
    whenModal([](QWidget* w) {
        ASSERT_NE(qobject_cast<QPrintDialog*>(w), nullptr) << w->metaObject()->className();
        qobject_cast<QDialog*>(w)->reject();
    });
    run("ID_FILE_PRINT");

    // Printed to a file on A4: the printer's paper, the report page's
    // margins, and the header and footer of the PDF.
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(tempPath("printed.pdf"));
    printer.setPageSize(QPageSize(QPageSize::A4));
    printer.setPageMargins(QMarginsF(3.5, 3.5, 3.5, 3.5), QPageLayout::Millimeter);
    report->print(&printer);
    const QSizeF a4 = pdfPageSize(tempPath("printed.pdf"));
    EXPECT_NEAR(a4.width(), 595, 1);
    EXPECT_NEAR(a4.height(), 842, 1);
    EXPECT_NEAR(leftmostText(tempPath("printed.pdf")), margin, 3);
    const QString printed = runTool(QStringLiteral("pdftotext"), {tempPath("printed.pdf"), "-"});
    EXPECT_TRUE(printed.contains(QStringLiteral("Standard Measures Report")))
        << printed.toStdString();
    EXPECT_TRUE(printed.contains(QStringLiteral("Page 1 of"))) << printed.toStdString();
    EXPECT_TRUE(printed.contains(QStringLiteral("Total Utterances"))) << printed.toStdString();
    EXPECT_FALSE(printer.fullPage()) << "the printer is left as it was";

    // The saved PDF keeps its Letter page and margins.
    savePdf(tempPath("after.pdf"));
    const QSizeF after = pdfPageSize(tempPath("after.pdf"));
    EXPECT_NEAR(after.width(), 612, 1);
    EXPECT_NEAR(after.height(), 792, 1);
    EXPECT_NEAR(leftmostText(tempPath("after.pdf")), margin, 1);

    // The PDF page is set up apart: landscape A5 with 20 mm margins.
    whenModal([](QWidget* w) {
        auto* dialog = qobject_cast<CPageSetupDialog*>(w);
        ASSERT_NE(dialog, nullptr);
        auto* paper = dialog->findChild<QComboBox*>(QStringLiteral("Paper"));
        paper->setCurrentIndex(paper->findText(QStringLiteral("A5")));
        dialog->findChild<QDoubleSpinBox*>(QStringLiteral("Margin"))->setValue(20);
        dialog->accept();
    });
    run("ID_FILE_PDF_SETUP");
    savePdf(tempPath("a5.pdf"));
    const QSizeF a5 = pdfPageSize(tempPath("a5.pdf"));
    EXPECT_NEAR(a5.width(), 420, 1);
    EXPECT_NEAR(a5.height(), 595, 1);
    EXPECT_NEAR(leftmostText(tempPath("a5.pdf")), 20 / 25.4 * 72, 3);
}

TEST_F(DesktopFeelTest, TheActiveWindowIsMarkedListedAndSearchedByFind) {
    frame->resize(1000, 700);
    CTAVIFrame* first = frame->newTranscript(QStringLiteral("$ Child, Examiner\nC apple.\n"));
    CTAVIFrame* second = frame->newTranscript(QStringLiteral("$ Child, Examiner\nC banana.\n"));
    QApplication::processEvents();
    EXPECT_TRUE(second->markedActive());
    EXPECT_FALSE(first->markedActive());
    // The mark shows: the frames' edges differ in colour.
    const QImage a = first->grab().toImage();
    const QImage b = second->grab().toImage();
    EXPECT_NE(a.pixelColor(a.width() / 2, a.height() - 1),
              b.pixelColor(b.width() / 2, b.height() - 1));

    frame->mdiArea().setActiveSubWindow(first);
    QApplication::processEvents();
    EXPECT_TRUE(first->markedActive());
    EXPECT_FALSE(second->markedActive());

    // The Window menu checks the active window only.
    QMenu* window = menu(QStringLiteral("&Window"));
    ASSERT_NE(window, nullptr);
    Q_EMIT window->aboutToShow();
    QStringList checked;
    for (QAction* act : window->actions())
        if (act->isCheckable() && act->isChecked())
            checked << act->text();
    ASSERT_EQ(checked.size(), 1) << checked.join(QLatin1Char('|')).toStdString();
    EXPECT_TRUE(checked.front().endsWith(first->doc().title())) << checked.front().toStdString();

    // Find follows the active window: opened on the first, it searches the
    // second once that is active.
    run("ID_EDIT_FIND_REPLACE");
    auto* find = frame->findChild<CFindReplaceDialog*>();
    ASSERT_NE(find, nullptr);
    EXPECT_TRUE(find->windowTitle().contains(first->doc().title()));
    frame->mdiArea().setActiveSubWindow(second);
    QApplication::processEvents();
    EXPECT_TRUE(find->windowTitle().contains(second->doc().title()))
        << find->windowTitle().toStdString();
    second->view().moveCursor(QTextCursor::Start);
    find->findChild<QLineEdit*>(QStringLiteral("findText"))->setText(QStringLiteral("banana"));
    EXPECT_TRUE(find->findNext());
    EXPECT_EQ(second->view().textCursor().selectedText(), "banana");
    find->close();
}

// A sample of the dialogs of every menu, each answered by checking it.
TEST_F(DesktopFeelTest, DialogsAreAsWideAsTheirTitlesAndHaveMnemonics) {
    ASSERT_NE(frame->openTranscript(dataFile("park.tvi")), nullptr);
    const char* commands[] = {
        "ID_FILE_NEW",       "ID_FILE_PRINT_SETUP", "ID_FILE_PDF_SETUP", "ID_EDIT_GOTO_ENTRY",
        "ID_SETUP_ASET",     "ID_SETUP_WBASE",      "ID_SETUP_TCUT",     "ID_ANSET_MATTR",
        "ID_ANSET_PCSD",     "ID_ANAL_SMR",         "ID_DB_SELECT",      "ID_TOOLS_RDF",
        "ID_TOOLS_GENVOC",   "ID_ANAL_UTT_TYPES",   "ID_EXPLORE_LIST",   "ID_EDSET_BACKUP",
        "ID_TOOLS_BUILD_DB", "ID_ANAL_CUSTOM_PDF",  "ID_EDSET_SI",       "ID_ANSET_DEFDB",
        "ID_TOOLS_CHECK",
    };
    QStringList problems;
    for (const char* id : commands) {
        QAction* act = action(id);
        if (!act || !act->isEnabled())
            continue;
        whenModal([&problems, id](QWidget* w) {
            if (qobject_cast<QMessageBox*>(w) == nullptr) {
                const QString where = QString::fromLatin1(id) + QStringLiteral(" \"") +
                                      w->windowTitle() + QStringLiteral("\": ");
                if (w->width() < DialogPolish::titleWidth(*w))
                    problems << where + QStringLiteral("%1 wide, the title needs %2")
                                            .arg(w->width())
                                            .arg(DialogPolish::titleWidth(*w));
                for (QAbstractButton* b : w->findChildren<QAbstractButton*>()) {
                    if (b->text().isEmpty() || !b->isVisibleTo(w))
                        continue;
                    auto* box = qobject_cast<QDialogButtonBox*>(b->parentWidget());
                    if (box && (box->buttonRole(b) == QDialogButtonBox::AcceptRole ||
                                box->buttonRole(b) == QDialogButtonBox::RejectRole))
                        continue;
                    if (DialogPolish::mnemonicOf(b->text()).isNull())
                        problems << where + QStringLiteral("button ") + b->text();
                }
                for (QLabel* l : w->findChildren<QLabel*>()) {
                    const bool mnemonic = !DialogPolish::mnemonicOf(l->text()).isNull();
                    if (l->buddy() && !mnemonic)
                        problems << where + QStringLiteral("label ") + l->text();
                    // A field's label without its field shows the "&" as it is.
                    if (!l->buddy() && mnemonic && l->text().endsWith(QLatin1Char(':')))
                        problems << where + QStringLiteral("label without a field ") + l->text();
                }
            }
            w->close();
        });
        act->trigger();
        settle();
        // Whatever a cancelled command still asks is answered too.
        while (QWidget* more = QApplication::activeModalWidget()) {
            more->close();
            QApplication::processEvents();
        }
    }
    EXPECT_TRUE(problems.isEmpty()) << problems.join(QLatin1Char('\n')).toStdString();
}

TEST_F(DesktopFeelTest, ADialogNarrowerThanItsTitleIsWidenedAsItShows) {
    QDialog dialog(frame.get());
    dialog.setWindowTitle(
        QStringLiteral("Summary of Utterance Types - a long transcript name.tvi"));
    auto* save = new QPushButton(QStringLiteral("Save"), &dialog);
    save->move(4, 4);
    dialog.resize(120, 80);
    dialog.show();
    QApplication::processEvents();
    EXPECT_GE(dialog.width(), DialogPolish::titleWidth(dialog));
    EXPECT_EQ(save->text(), "&Save");
}

TEST_F(DesktopFeelTest, MnemonicsAreChosenFromFreeLettersAtWordStarts) {
    QString used = QStringLiteral("s");
    EXPECT_EQ(DialogPolish::withMnemonic(QStringLiteral("Save as Default"), used),
              "Save &as Default");
    EXPECT_EQ(DialogPolish::withMnemonic(QStringLiteral("Show &all"), used), "Show &all");
    EXPECT_EQ(DialogPolish::withMnemonic(QStringLiteral("Sad"), used), "Sa&d");
    // With every letter taken, a word's first letter is shared: Alt and the
    // letter then moves between the fields that have it.
    QString all = QStringLiteral("abcdefghijklmnopqrstuvwxyz0123456789");
    EXPECT_EQ(DialogPolish::withMnemonic(QStringLiteral("# Words/Minute"), all), "# &Words/Minute");
    EXPECT_EQ(DialogPolish::withMnemonic(QStringLiteral("# ..."), all), "# ...");
    EXPECT_EQ(DialogPolish::mnemonicOf(QStringLiteral("Fish && &Chips")), QChar('c'));
    EXPECT_TRUE(DialogPolish::mnemonicOf(QStringLiteral("Fish && Chips")).isNull());
}

TEST_F(DesktopFeelTest, RecentFilesDropFilesThatAreGone) {
    QFile::copy(dataFile("park.tvi"), tempPath("kept.tvi"));
    QFile::copy(dataFile("park.tvi"), tempPath("gone.tvi"));
    QFile::copy(dataFile("park.tvi"), tempPath("later.tvi"));
    for (const char* name : {"later.tvi", "gone.tvi", "kept.tvi"})
        app->addRecentFile(tempPath(name));
    QFile::remove(tempPath("gone.tvi"));
    QMenu* file = menu(QStringLiteral("&File"));
    ASSERT_NE(file, nullptr);
    Q_EMIT file->aboutToShow();
    QStringList shown;
    for (QAction* a : file->actions())
        if (a->objectName().startsWith(QStringLiteral("ID_FILE_MRU_FILE")))
            shown << a->text();
    EXPECT_EQ(shown, QStringList({QStringLiteral("&1 ") + tempPath("kept.tvi"),
                                  QStringLiteral("&2 ") + tempPath("later.tvi")}));

    // Chosen after it went: a message, and the entry leaves the list.
    QFile::remove(tempPath("later.tvi"));
    pressOnMessage(QStringLiteral("OK"));
    EXPECT_EQ(frame->openRecentFile(tempPath("later.tvi")), nullptr);
    settle();
    ASSERT_EQ(messages.size(), 1);
    EXPECT_TRUE(messages[0].startsWith(QStringLiteral("File not found")))
        << messages[0].toStdString();
    EXPECT_EQ(app->recentFiles(), QStringList({tempPath("kept.tvi")}));
}

TEST_F(DesktopFeelTest, TheWindowLayoutIsRestoredOnTheNextStart) {
    QFile::copy(dataFile("park.tvi"), tempPath("one.tvi"));
    QFile::copy(dataFile("park.tvi"), tempPath("two.tvi"));
    frame->setGeometry(40, 50, 820, 610);
    frame->openTranscript(tempPath("one.tvi"));
    frame->openTranscript(tempPath("two.tvi"));
    frame->newTranscript(QStringLiteral("$ Child, Examiner\n")); // never saved: not reopened
    frame->activeTranscriptFrame()->doc().document()->setModified(false);
    const QRect before = frame->geometry();
    EXPECT_TRUE(frame->close());
    ASSERT_TRUE(QFile::exists(frame->layoutPath()));
    QFile::remove(tempPath("one.tvi")); // gone since: not reopened

    CMainFrame next(*app);
    const QStringList reopen = next.restoreLayout();
    EXPECT_EQ(next.geometry().size(), before.size());
    EXPECT_EQ(reopen, QStringList({tempPath("two.tvi")}));

    // A damaged file restores nothing and opens nothing.
    QFile damaged(next.layoutPath());
    ASSERT_TRUE(damaged.open(QIODevice::WriteOnly));
    damaged.write("GEOMETRY ###\nOPEN\n\xff\xfe junk\n");
    damaged.close();
    CMainFrame third(*app);
    EXPECT_TRUE(third.restoreLayout().isEmpty());
}

TEST_F(DesktopFeelTest, NotationColoursAreReadableOnLightAndDarkPalettes) {
    QPalette dark;
    dark.setColor(QPalette::Base, QColor(0x1e, 0x1e, 0x1e));
    dark.setColor(QPalette::Text, QColor(0xe0, 0xe0, 0xe0));
    dark.setColor(QPalette::Window, QColor(0x2b, 0x2b, 0x2b));
    QPalette light;
    light.setColor(QPalette::Base, Qt::white);
    light.setColor(QPalette::Text, Qt::black);
    EXPECT_NEAR(contrastRatio(Qt::black, Qt::white), 21, 0.01);
    EXPECT_NEAR(contrastRatio(Qt::white, Qt::white), 1, 0.01);

    QTextDocument document;
    NotationHighlighter highlighter(&document);
    for (const QPalette& palette : {dark, light}) {
        highlighter.setPalette(palette);
        const QColor base = palette.color(QPalette::Base);
        for (int r = 0; r < static_cast<int>(NotationHighlighter::Role::Count); ++r) {
            const QColor colour =
                highlighter.format(static_cast<NotationHighlighter::Role>(r)).foreground().color();
            EXPECT_GE(contrastRatio(colour, base), 3.0)
                << "role " << r << " " << colour.name().toStdString() << " on "
                << base.name().toStdString();
        }
    }

    // A transcript window follows a change of colour scheme, problem marks too.
    CTAVIFrame* f = frame->openTranscript(dataFile("broken.tvi"));
    ASSERT_NE(f, nullptr);
    f->view().setPalette(dark);
    const QColor speaker =
        f->view().highlighter().format(NotationHighlighter::Role::SpeakerLine).foreground().color();
    EXPECT_GE(contrastRatio(speaker, dark.color(QPalette::Base)), 3.0);
    f->doc().checkNow();
    QApplication::processEvents();
    for (const QTextEdit::ExtraSelection& mark : f->view().extraSelections())
        EXPECT_GE(contrastRatio(dark.color(QPalette::Text), mark.format.background().color()), 4.5);
}

} // namespace
} // namespace tavi::app::test
