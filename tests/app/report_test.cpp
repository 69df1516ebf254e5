// Checking a transcript and making, saving and collecting its reports through
// the real menus and dialogs.
#include <QClipboard>
#include <QFile>
#include <QListWidget>
#include <QProcess>
#include <QRadioButton>
#include <QTest>

#include "app/error_list_dialog.h"
#include "app/rept_doc.h"
#include "app/rept_frame.h"
#include "app/rept_view.h"
#include "app/save_report_dialog.h"
#include "app/smr_variables_dialog.h"
#include "app/tavi_doc.h"
#include "app/tavi_frame.h"
#include "app/tavi_view.h"
#include "app_fixture.h"

namespace tavi::app::test {
namespace {

QByteArray fileBytes(const QString& path) {
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

// The text of a PDF file as pdftotext reads it.
QString pdfText(const QString& path) {
    QProcess p;
    p.start(QStringLiteral("pdftotext"), {path, QStringLiteral("-")});
    if (!p.waitForFinished(20000))
        return QString();
    return QString::fromUtf8(p.readAllStandardOutput());
}

class ReportTest : public AppTest {
protected:
    // Opens park.tvi and makes its Standard Measures Report with the dialog's
    // choices as they stand.
    CReptFrame* standardMeasuresReport() {
        if (!frame->activeTranscriptFrame() && !frame->openTranscript(dataFile("park.tvi")))
            return nullptr;
        whenModal([](QWidget* w) {
            ASSERT_NE(qobject_cast<CSmrVariablesDialog*>(w), nullptr);
            qobject_cast<QDialog*>(w)->accept();
        });
        run("ID_ANAL_SMR");
        return frame->activeReportFrame();
    }

    // Saves the active report in the format of one radio button of "Save report as".
    void saveActiveReport(const char* choice, const QString& path) {
        whenModal([choice](QWidget* w) {
            auto* dialog = qobject_cast<CSaveReportTypeRTF*>(w);
            ASSERT_NE(dialog, nullptr);
            EXPECT_EQ(dialog->windowTitle(), "Save report as");
            dialog->findChild<QRadioButton*>(QString::fromLatin1(choice))->setChecked(true);
            dialog->accept();
        });
        if (!path.isEmpty())
            chooseFile(path);
        run("ID_FILE_SAVE");
    }
};

TEST_F(ReportTest, CheckListsProblemsInLineOrderAndGoesToTheirLines) {
    CTAVIFrame* f = frame->openTranscript(dataFile("broken.tvi"));
    ASSERT_NE(f, nullptr);
    run("ID_EDIT_CHECK");
    auto* dialog = frame->findChild<CErrorListDialog*>();
    ASSERT_NE(dialog, nullptr);
    QListWidget& list = dialog->list();
    ASSERT_GE(list.count(), 2);
    EXPECT_TRUE(list.item(0)->text().startsWith("E108 on entry 3: "))
        << list.item(0)->text().toStdString();
    int previous = 0;
    for (const err& e : f->doc().problems()) {
        EXPECT_GE(e.line, previous);
        previous = e.line;
    }
    dialog->goToRow(list.count() - 1);
    EXPECT_EQ(f->view().textCursor().blockNumber() + 1, f->doc().problems().back().line);
    dialog->close();

    // Before an analysis the same list asks whether to go on; Cancel stops it.
    whenModal([](QWidget* w) {
        auto* ask = qobject_cast<CErrorListDialog*>(w);
        ASSERT_NE(ask, nullptr);
        ask->reject();
    });
    run("ID_ANAL_SMR");
    EXPECT_EQ(frame->activeReportFrame(), nullptr);
}

TEST_F(ReportTest, StandardMeasuresReportSavesAsPdfAndRtfAndFollowsTheAnalysisSet) {
    CReptFrame* report = standardMeasuresReport();
    ASSERT_NE(report, nullptr);
    const QString shown = report->view().toPlainText();
    EXPECT_TRUE(shown.contains("TRANSCRIPT LENGTH")) << shown.toStdString();
    EXPECT_TRUE(shown.contains("Total Utterances"));
    EXPECT_TRUE(shown.contains("park.tvi"));

    saveActiveReport("choicePdf", tempPath("smr.pdf"));
    EXPECT_TRUE(fileBytes(tempPath("smr.pdf")).startsWith("%PDF"));
    const QString pdf = pdfText(tempPath("smr.pdf"));
    EXPECT_TRUE(pdf.contains("Total Utterances")) << pdf.toStdString();
    EXPECT_EQ(report->windowTitle(), "smr.pdf");

    // The format chosen last is offered first next time.
    whenModal([](QWidget* w) {
        auto* dialog = qobject_cast<CSaveReportTypeRTF*>(w);
        EXPECT_EQ(dialog->choice(), static_cast<int>(RichTextSaveChoice::Pdf));
        dialog->findChild<QRadioButton*>("choiceRtf")->setChecked(true);
        dialog->accept();
    });
    chooseFile(tempPath("smr.rtf"));
    run("ID_FILE_SAVE");
    const QByteArray rtf = fileBytes(tempPath("smr.rtf"));
    EXPECT_TRUE(rtf.startsWith("{\\rtf1"));
    EXPECT_TRUE(rtf.contains("Total Utterances"));

    saveActiveReport("choiceTxt", tempPath("smr.txt"));
    EXPECT_TRUE(fileBytes(tempPath("smr.txt")).contains("Total Utterances"));
    EXPECT_TRUE(fileBytes(tempPath("smr.txt")).startsWith("\xEF\xBB\xBF"));
}

TEST_F(ReportTest, PdfBatchCollectsReportsAndCloses) {
    ASSERT_NE(standardMeasuresReport(), nullptr);
    EXPECT_FALSE(action("ID_FILE_CLOSE_PDF_BATCH")->isEnabled());
    chooseFile(tempPath("park_Reports.pdf"));
    pressOnMessage("OK");
    run("ID_FILE_ADD_PDF_BATCH");
    EXPECT_EQ(messages.value(0), "Report 1 has been added to the PDF file");

    // The second report joins through the save dialog's batch choice.
    frame->mdiArea().setActiveSubWindow(frame->transcriptFrames().front());
    ASSERT_NE(standardMeasuresReport(), nullptr);
    whenModal([](QWidget* w) {
        auto* dialog = qobject_cast<CSaveReportTypeRTF*>(w);
        auto* batch = dialog->findChild<QRadioButton*>("choiceBatch");
        EXPECT_EQ(batch->text(), "Close PDF &Batch");
        batch->setChecked(true);
        dialog->accept();
    });
    run("ID_FILE_SAVE");
    EXPECT_FALSE(action("ID_FILE_CLOSE_PDF_BATCH")->isEnabled());
    EXPECT_EQ(app->reportSave.batchCount(), 0);

    chooseFile(tempPath("second_Reports.pdf")); // a new batch asks for its file again
    pressOnMessage("OK");
    run("ID_FILE_ADD_PDF_BATCH");
    EXPECT_EQ(messages.value(1), "Report 1 has been added to the PDF file");
    pressOnMessage("OK");
    run("ID_FILE_ADD_PDF_BATCH");
    EXPECT_EQ(messages.value(2), "Report 2 has been added to the PDF file");
    const QString pdf = pdfText(tempPath("second_Reports.pdf"));
    EXPECT_EQ(pdf.count("TRANSCRIPT LENGTH"), 2);
    run("ID_FILE_CLOSE_PDF_BATCH");
    EXPECT_EQ(app->reportSave.batchCount(), 0);
}

// Select All, Copy, Save and Print go to the active window, whichever kind it
// is; a help window is no document and takes none of them.
TEST_F(ReportTest, FileAndEditCommandsGoToTheActiveWindowOfEitherKind) {
    CReptFrame* report = standardMeasuresReport();
    ASSERT_NE(report, nullptr);
    run("ID_EDIT_SELECT_ALL");
    EXPECT_TRUE(report->view().textCursor().hasSelection());
    run("ID_EDIT_COPY");
    EXPECT_TRUE(QApplication::clipboard()->text().contains("TRANSCRIPT LENGTH"));

    CTAVIFrame* transcript = frame->transcriptFrames().front();
    frame->mdiArea().setActiveSubWindow(transcript);
    run("ID_EDIT_SELECT_ALL");
    EXPECT_EQ(transcript->view().textCursor().selectedText().size(),
              transcript->doc().document()->toPlainText().size());
    EXPECT_FALSE(report->view().textCursor().selectedText().isEmpty()) << "left as it was";

    // Save As of a transcript asks for its name; of a report, for its format.
    chooseFile(tempPath("copy.tvi"));
    run("ID_FILE_SAVE_AS");
    EXPECT_EQ(transcript->doc().title(), "copy.tvi");
    frame->mdiArea().setActiveSubWindow(report);
    saveActiveReport("choiceTxt", tempPath("report.txt"));
    EXPECT_TRUE(fileBytes(tempPath("report.txt")).contains("TRANSCRIPT LENGTH"));
    EXPECT_EQ(report->windowTitle(), "report.txt");

    run("ID_HELP_README");
    EXPECT_EQ(frame->currentWindow()->objectName(), "CHelpFrame");
    frame->updateCommands();
    for (const char* id :
         {"ID_FILE_SAVE", "ID_FILE_SAVE_AS", "ID_FILE_PRINT", "ID_EDIT_COPY", "ID_EDIT_SELECT_ALL"})
        EXPECT_FALSE(action(id)->isEnabled()) << id;
    EXPECT_TRUE(action("ID_FILE_CLOSE")->isEnabled());
}

// Closing the program offers each changed transcript once; one "Cancel"
// keeps every window open.
TEST_F(ReportTest, ClosingTheProgramAsksForEachChangedTranscriptOnce) {
    ASSERT_NE(standardMeasuresReport(), nullptr);
    CTAVIFrame* park = frame->transcriptFrames().front();
    park->view().moveCursor(QTextCursor::End);
    park->view().insertPlainText(QStringLiteral("C That's all.\n"));
    pressOnMessage("Cancel");
    EXPECT_FALSE(frame->close());
    settle();
    EXPECT_EQ(frame->mdiArea().subWindowList().size(), 2);
    pressOnMessage("No");
    EXPECT_TRUE(frame->close());
    settle();
    EXPECT_EQ(messages, QStringList({"Save changes to park.tvi?", "Save changes to park.tvi?"}));
    EXPECT_TRUE(frame->mdiArea().subWindowList().isEmpty());
}

TEST_F(ReportTest, ReportOfAClosedTranscriptSaysItIsNoLongerAvailable) {
    ASSERT_NE(standardMeasuresReport(), nullptr);
    frame->transcriptFrames().front()->close();
    settle();
    ASSERT_NE(frame->activeReportFrame(), nullptr);
    pressOnMessage("OK");
    run("ID_ANAL_SMR");
    EXPECT_EQ(messages, QStringList{"Transcript is no longer available"});
}

TEST_F(ReportTest, SummaryOfUtteranceTypesOpensAsAReport) {
    ASSERT_NE(frame->openTranscript(dataFile("park.tvi")), nullptr);
    whenModal([](QWidget* w) { qobject_cast<QDialog*>(w)->accept(); });
    run("ID_ANAL_UTT_TYPES");
    CReptFrame* report = frame->activeReportFrame();
    ASSERT_NE(report, nullptr);
    EXPECT_TRUE(report->view().toPlainText().contains("Total Utterances"));
    EXPECT_TRUE(report->view().toPlainText().contains("(?)"));
}

} // namespace
} // namespace tavi::app::test
