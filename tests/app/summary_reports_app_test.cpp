// The Analyze menu's summaries, distribution tables and customised PDF
// through the real menus and dialogs: each opens as a report window, a grid
// report saves as CSV first, and the customised PDF holds what was checked.
#include <QFile>
#include <QListWidget>
#include <QProcess>
#include <QRadioButton>

#include "app/custom_pdf_dialog.h"
#include "app/rept_frame.h"
#include "app/rept_view.h"
#include "app/save_report_dialog.h"
#include "app/tavi_frame.h"
#include "app_fixture.h"

namespace tavi::app::test {
namespace {

QByteArray fileBytes(const QString& path) {
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

QString pdfText(const QString& path) {
    QProcess p;
    p.start(QStringLiteral("pdftotext"), {path, QStringLiteral("-")});
    if (!p.waitForFinished(20000))
        return QString();
    return QString::fromUtf8(p.readAllStandardOutput());
}

using SummaryReportsTest = AppTest;

TEST_F(SummaryReportsTest, EverySummaryAndTableOpensAsAReport) {
    ASSERT_NE(frame->openTranscript(dataFile("park.tvi")), nullptr);
    const std::pair<const char*, const char*> commands[] = {
        {"ID_ANAL_SYNTAX", "MLU in Words"},
        {"ID_ANAL_DIST", "Utterances by Utterance Length"},
        {"ID_ANAL_SEMANTICS", "Number Different Words"},
        {"ID_ANAL_DISCOURSE", "Mean Turn Length"},
        {"ID_ANAL_TURNS", "Turn Length (words)"},
        {"ID_ANAL_FACILITY", "Words/Minute"},
        {"ID_ANAL_MAZES", "Number of Mazes by Maze Length"},
        {"ID_ANAL_ERRORS", "Omitted Words"},
        {"ID_ANAL_CODES", "Utterances with Codes"},
    };
    for (const auto& [id, line] : commands) {
        SCOPED_TRACE(id);
        frame->mdiArea().setActiveSubWindow(frame->transcriptFrames().front());
        whenModal([](QWidget* w) { qobject_cast<QDialog*>(w)->accept(); }); // the speaker
        run(id);
        CReptFrame* report = frame->activeReportFrame();
        ASSERT_NE(report, nullptr);
        EXPECT_TRUE(report->view().toPlainText().contains(QString::fromLatin1(line)))
            << report->view().toPlainText().toStdString();
    }
}

TEST_F(SummaryReportsTest, GridReportSavesAsCsvFirst) {
    ASSERT_NE(frame->openTranscript(dataFile("park.tvi")), nullptr);
    whenModal([](QWidget* w) { qobject_cast<QDialog*>(w)->accept(); });
    run("ID_ANAL_TURNS");
    ASSERT_NE(frame->activeReportFrame(), nullptr);
    whenModal([](QWidget* w) {
        auto* dialog = qobject_cast<CSaveReportType*>(w);
        ASSERT_NE(dialog, nullptr);
        EXPECT_EQ(dialog->choice(), static_cast<int>(GridSaveChoice::Csv));
        EXPECT_NE(dialog->findChild<QRadioButton*>("choiceTsv"), nullptr);
        dialog->accept();
    });
    chooseFile(tempPath("turns.csv"));
    run("ID_FILE_SAVE");
    const QByteArray csv = fileBytes(tempPath("turns.csv"));
    EXPECT_TRUE(csv.startsWith("\xEF\xBB\xBF")) << csv.toStdString();
    EXPECT_TRUE(csv.contains("Turn Length (utterances)")) << csv.toStdString();
    EXPECT_TRUE(csv.contains("Number,")) << csv.toStdString();

    // A rich-text report keeps its own dialog.
    frame->mdiArea().setActiveSubWindow(frame->transcriptFrames().front());
    whenModal([](QWidget* w) { qobject_cast<QDialog*>(w)->accept(); });
    run("ID_ANAL_SYNTAX");
    whenModal([](QWidget* w) {
        EXPECT_NE(qobject_cast<CSaveReportTypeRTF*>(w), nullptr);
        qobject_cast<QDialog*>(w)->reject();
    });
    run("ID_FILE_SAVE");
}

TEST_F(SummaryReportsTest, CustomizedPdfHoldsTheCheckedReports) {
    ASSERT_NE(frame->openTranscript(dataFile("park.tvi")), nullptr);
    whenModal([](QWidget* w) { qobject_cast<QDialog*>(w)->accept(); }); // the speaker
    whenModal([](QWidget* w) {
        auto* dialog = qobject_cast<CCustomPdfDialog*>(w);
        ASSERT_NE(dialog, nullptr);
        QListWidget& list = dialog->list();
        for (int i = 0; i < list.count(); ++i) {
            const QString title = list.item(i)->text();
            list.item(i)->setCheckState(title == "Discourse Summary" || title == "Code Summary"
                                            ? Qt::Checked
                                            : Qt::Unchecked);
        }
        EXPECT_EQ(dialog->kinds(), (std::vector<std::string>{"discourse-summary", "code-summary"}));
        dialog->accept();
    });
    chooseFile(tempPath("custom.pdf"));
    run("ID_ANAL_CUSTOM_PDF");
    settle();
    EXPECT_TRUE(fileBytes(tempPath("custom.pdf")).startsWith("%PDF"));
    const QString text = pdfText(tempPath("custom.pdf"));
    if (text.isEmpty())
        GTEST_SKIP() << "pdftotext is not available";
    EXPECT_TRUE(text.contains("Contents")) << text.toStdString();
    EXPECT_TRUE(text.contains("TURN LENGTH"));
    EXPECT_TRUE(text.contains("WORD CODES"));
    EXPECT_FALSE(text.contains("TRANSCRIPT LENGTH")); // no Standard Measures Report
}

} // namespace
} // namespace tavi::app::test
