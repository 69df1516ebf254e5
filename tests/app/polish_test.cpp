// What a person notices in the first minutes: windows that open where they
// can be seen, fonts that stay as they were when a dialog is confirmed, a
// report without a caret, the new-transcript dialog's dates and labels, and
// Help buttons that open their document.
#include <QFile>
#include <QFontDatabase>
#include <QFontInfo>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMessageBox>
#include <QMouseEvent>
#include <QPushButton>
#include <QStatusBar>
#include <QTextBrowser>

#include "app/app_fixture.h"
#include "app/new_transcript_dialog.h"
#include "app/rept_frame.h"
#include "app/rept_view.h"
#include "app/tavi_doc.h"
#include "app/tavi_frame.h"
#include "app/tavi_view.h"

namespace tavi::app::test {
namespace {

class PolishTest : public AppTest {};

TEST_F(PolishTest, NewWindowsCascadeInsideTheVisibleArea) {
    frame->resize(900, 640);
    frame->show();
    QApplication::processEvents();
    const QRect area = frame->mdiArea().viewport()->rect();
    for (int i = 0; i < 12; ++i)
        frame->newTranscript(QStringLiteral("$ Child, Examiner\nC hi.\n"));
    QList<QPoint> corners;
    for (QMdiSubWindow* w : frame->mdiArea().subWindowList()) {
        EXPECT_TRUE(area.contains(w->geometry())) << "window at " << w->x() << "," << w->y()
                                                  << " size " << w->width() << "x" << w->height();
        corners << w->pos();
    }
    // Cascaded: the first few windows do not sit on top of each other.
    EXPECT_NE(corners.value(0), corners.value(1));
}

TEST_F(PolishTest, SaveAndPrintAreOffWhileAHelpWindowIsActive) {
    frame->newTranscript(QStringLiteral("$ Child, Examiner\nC hi.\n"));
    frame->updateCommands();
    for (const char* id : {"ID_FILE_SAVE", "ID_FILE_SAVE_AS", "ID_FILE_PRINT"})
        EXPECT_TRUE(action(id)->isEnabled()) << id << " with a transcript active";
    run("ID_HELP_FINDER");
    QMdiSubWindow* active = frame->mdiArea().activeSubWindow();
    ASSERT_NE(active, nullptr);
    EXPECT_EQ(active->objectName(), QStringLiteral("CHelpFrame"));
    frame->updateCommands();
    for (const char* id : {"ID_FILE_SAVE", "ID_FILE_SAVE_AS", "ID_FILE_PRINT"})
        EXPECT_FALSE(action(id)->isEnabled()) << id << " with a help window active";
}

TEST_F(PolishTest, TheTranscriptFontKeepsAnUprightStyle) {
    app->settings().transcriptFont.faceName = "DejaVu Sans Mono";
    app->settings().transcriptFont.italic = 0;
    CTAVIFrame* f = frame->newTranscript(QStringLiteral("$ Child, Examiner\n"));
    const QFont font = f->view().font();
    const QString family = QFontInfo(font).family();
    ASSERT_FALSE(font.styleName().isEmpty()) << "no style name: the font dialog picks one";
    EXPECT_FALSE(QFontDatabase::italic(family, font.styleName())) << font.styleName().toStdString();
}

TEST_F(PolishTest, ReportsShowNoCaret) {
    frame->openTranscript(dataFile("park.tvi"));
    whenModal([](QWidget* w) { qobject_cast<QDialog*>(w)->accept(); });
    run("ID_ANAL_SMR");
    CReptFrame* report = frame->activeReportFrame();
    ASSERT_NE(report, nullptr);
    EXPECT_EQ(report->view().cursorWidth(), 0);
    EXPECT_TRUE(report->view().isReadOnly());
}

TEST_F(PolishTest, NewTranscriptShowsTheDateFormatWorksOutTheAgeAndWritesLabelTexts) {
    whenModal([](QWidget* w) {
        auto* dialog = qobject_cast<CNewTranscriptDialog*>(w);
        ASSERT_NE(dialog, nullptr);
        auto* dob = dialog->findChild<QLineEdit*>(QStringLiteral("DOB"));
        ASSERT_NE(dob, nullptr);
        EXPECT_EQ(dob->placeholderText(), "MM-DD-YY");
        dialog->setField("TSPEAKER", "Child");
        dialog->setField("OSPEAKER", "Examiner");
        dialog->setField("Gender", "Female");
        dialog->setField("DOB", "03-15-2018");
        dialog->setField("DOE", "09-14-2023");
        EXPECT_EQ(dialog->findChild<QLineEdit*>(QStringLiteral("CA"))->text(), "5;5");
        dialog->setField("Context", "Narration");
        dialog->setField("MODE", "Oral");
        dialog->accept();
    });
    run("ID_FILE_NEW");
    CTAVIFrame* f = frame->activeTranscriptFrame();
    ASSERT_NE(f, nullptr);
    EXPECT_EQ(f->doc().document()->toPlainText(),
              "$ Child, Examiner\n+ Gender: F\n+ DOB: 03-15-2018\n+ DOE: 09-14-2023\n"
              "+ CA: 5;5\n+ Context: Narration\n+ MODE: Oral\n");
}

TEST_F(PolishTest, OptionsDialogsOpenTheirHelpBesideThemAndButtonsKeepOneLine) {
    whenModal([](QWidget* w) {
        QPushButton* help = nullptr;
        for (QPushButton* b : w->findChildren<QPushButton*>()) {
            EXPECT_FALSE(b->text().contains(QLatin1Char('\n'))) << b->text().toStdString();
            if (b->text() == QStringLiteral("&Help"))
                help = b;
        }
        ASSERT_NE(help, nullptr);
        help->click();
        QTextBrowser* shown = nullptr;
        for (QWidget* top : QApplication::topLevelWidgets())
            if (top->objectName() == QStringLiteral("CHelpWindow") && top->isVisible())
                shown = qobject_cast<QTextBrowser*>(top);
        ASSERT_NE(shown, nullptr);
        EXPECT_TRUE(
            shown->toPlainText().contains(QStringLiteral("word base"), Qt::CaseInsensitive));
        shown->close();
        qobject_cast<QDialog*>(w)->reject();
    });
    run("ID_SETUP_WBASE");
}

TEST_F(PolishTest, APdfIsNotOpenedAsATranscript) {
    QFile pdf(tempPath("report.pdf"));
    ASSERT_TRUE(pdf.open(QIODevice::WriteOnly));
    pdf.write(QByteArray("%PDF-1.4\n%\xE2\xE3\xCF\xD3\n1 0 obj\n<< >>\nstream\n\0\x01\x02"));
    pdf.close();
    pressOnMessage("OK");
    EXPECT_EQ(frame->openTranscript(tempPath("report.pdf")), nullptr);
    settle();
    EXPECT_EQ(messages.value(0), "Cannot open report.pdf: it is not a transcript but a PDF file.");
    EXPECT_TRUE(frame->transcriptFrames().isEmpty());
}

TEST_F(PolishTest, HelpNamesThePdfViewerAndOpensTheLocalDocumentation) {
    whenModal([this](QWidget* w) {
        auto* box = qobject_cast<QMessageBox*>(w);
        ASSERT_NE(box, nullptr);
        messages << box->text();
        box->reject();
    });
    run("ID_HELP_ACROBAT");
    settle();
    ASSERT_EQ(messages.size(), 1);
    EXPECT_TRUE(messages[0].startsWith("No program is set up to open PDF files") ||
                messages[0].startsWith("PDF reports open with "))
        << messages[0].toStdString();

    run("ID_HELP_ONLINE");
    QMdiSubWindow* help = frame->mdiArea().activeSubWindow();
    ASSERT_NE(help, nullptr);
    EXPECT_EQ(help->objectName(), "CHelpFrame");
}

TEST_F(PolishTest, HoveringACommandNotAvailableSaysWhyInTheStatusBar) {
    QAction* unavailable = action("ID_FILE_IMPORT_CP");
    ASSERT_NE(unavailable, nullptr);
    ASSERT_FALSE(unavailable->isEnabled());
    QMenu* menu = nullptr;
    for (QObject* o : unavailable->associatedObjects())
        if (auto* m = qobject_cast<QMenu*>(o))
            menu = m;
    ASSERT_NE(menu, nullptr);
    menu->resize(menu->sizeHint()); // laid out as when it opens
    const QPointF at = menu->actionGeometry(unavailable).center();
    QMouseEvent move(QEvent::MouseMove, at, menu->mapToGlobal(at), Qt::NoButton, Qt::NoButton,
                     Qt::NoModifier);
    QApplication::sendEvent(menu, &move);
    EXPECT_EQ(frame->statusBar()->currentMessage(), unavailable->statusTip());
    EXPECT_TRUE(frame->statusBar()->currentMessage().contains("not available"))
        << frame->statusBar()->currentMessage().toStdString();
}

} // namespace
} // namespace tavi::app::test
