// The Tools menu through the real dialogs: a word list as a table, checking
// many transcripts and opening one at a problem's line, a selection file
// saved and loaded back through the rectangular data file dialog, a batch
// run shown as a grid, and a database built from the dialog compared byte for
// byte with one built by `tavi db add`.
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLineEdit>
#include <QListWidget>
#include <QRegularExpression>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <cstdlib>

#include "app/batch_dialog.h"
#include "app/db_build_dialog.h"
#include "app/list_gen_dialog.h"
#include "app/rept_frame.h"
#include "app/rept_view.h"
#include "app/tavi_doc.h"
#include "app/tavi_frame.h"
#include "app/tavi_view.h"
#include "app/transcript_picker.h"
#include "app_fixture.h"
#include "batch/variable_catalogue.h"

namespace tavi::app::test {
namespace {

class ToolsTest : public AppTest {
protected:
    // A folder of transcripts the test writes.
    QString folder(const std::vector<std::pair<const char*, const char*>>& files) {
        const QString dir = tempPath("transcripts");
        QDir().mkpath(dir);
        for (const auto& [name, text] : files) {
            QFile f(dir + QLatin1Char('/') + QString::fromLatin1(name));
            EXPECT_TRUE(f.open(QIODevice::WriteOnly));
            f.write(text);
        }
        return dir;
    }
    QString reportText() {
        CReptFrame* report = frame->activeReportFrame();
        return report ? report->view().toPlainText() : QString();
    }
};

const char* kPark = "$ Child, Examiner\n+ Name: Kim Lee\n+ DOB: 1-6-2019\n+ DOE: 3-20-2024\n"
                    "+ Context: Nar\nC I like the dog/s.\nC the dog/s run/ed [EW:ran] home.\n";
const char* kZoo = "$ Child, Examiner\n+ CA: 6;1\n+ Context: Nar\nC my dog jump/ed.\n";
const char* kBroken = "$ Child, Examiner\nC I go home.\nC no end\n";

TEST_F(ToolsTest, GeneratedWordListShowsAsATable) {
    const QString dir = folder({{"park.tvi", kPark}, {"zoo.tvi", kZoo}});
    whenModal([dir](QWidget* w) {
        auto* dialog = qobject_cast<CListGenDialog*>(w);
        ASSERT_NE(dialog, nullptr);
        EXPECT_EQ(dialog->windowTitle(), "Generate Word List");
        dialog->picker().setFolder(dir);
        dialog->findChild<QComboBox*>("output")->setCurrentIndex(CListGenDialog::Table);
        dialog->accept();
    });
    run("ID_TOOLS_GENVOC");
    const QString text = reportText();
    EXPECT_TRUE(text.contains("Word List")) << text.toStdString();
    EXPECT_TRUE(text.contains("Transcripts:  2")) << text.toStdString();
    EXPECT_TRUE(text.contains(QRegularExpression("dog\\s+3\\s+2"))) << text.toStdString();
    EXPECT_TRUE(text.contains(QRegularExpression("jump\\s+1\\s+1"))) << text.toStdString();
}

TEST_F(ToolsTest, CheckingManyTranscriptsListsEachAndOpensOneAtItsProblem) {
    const QString dir = folder({{"broken.tvi", kBroken}, {"zoo.tvi", kZoo}});
    whenModal([dir](QWidget* w) {
        auto* picker = w->findChild<CTranscriptPicker*>();
        ASSERT_NE(picker, nullptr);
        picker->setFolder(dir);
        static_cast<QDialog*>(w)->accept();
    });
    run("ID_TOOLS_CHECK");
    CReptFrame* report = frame->activeReportFrame();
    ASSERT_NE(report, nullptr);
    const QString text = report->view().toPlainText();
    const QString broken = QDir(dir).filePath("broken.tvi");
    EXPECT_TRUE(text.contains(broken)) << text.toStdString();
    EXPECT_TRUE(text.contains("on entry 3:")) << text.toStdString();
    EXPECT_TRUE(text.contains("Summary")) << text.toStdString();
    EXPECT_TRUE(text.contains(QRegularExpression("zoo.tvi\\s+0\\s+0"))) << text.toStdString();

    const QTextCursor problem = report->view().document()->find(QStringLiteral("on entry 3:"));
    ASSERT_FALSE(problem.isNull());
    report->view().activateBlock(problem.blockNumber());
    settle();
    CTAVIFrame* opened = frame->activeTranscriptFrame();
    ASSERT_NE(opened, nullptr);
    EXPECT_EQ(opened->doc().path(), QFileInfo(broken).absoluteFilePath());
    EXPECT_EQ(opened->view().textCursor().blockNumber(), 2);
}

TEST_F(ToolsTest, SelectionFileRoundTripThroughTheDialog) {
    const QString sbt = tempPath("study.SBT");
    BatchSelections chosen;
    whenModal([&](QWidget* w) {
        auto* dialog = qobject_cast<CBatchDialog*>(w);
        ASSERT_NE(dialog, nullptr);
        const VariableCatalogue& c = VariableCatalogue::standard();
        // The second group's first two variables, checked as a person would.
        auto* groups = dialog->findChild<QListWidget*>("groups");
        ASSERT_EQ(groups->count(), static_cast<int>(c.groups().size()));
        groups->setCurrentRow(1);
        auto* variables = dialog->findChild<QListWidget*>("variables");
        ASSERT_GE(variables->count(), 2);
        variables->item(0)->setCheckState(Qt::Checked);
        variables->item(1)->setCheckState(Qt::Checked);
        groups->setCurrentRow(0);
        dialog->findChild<QListWidget*>("variables")->item(2)->setCheckState(Qt::Unchecked);
        dialog->findChild<QComboBox*>("speaker")->setCurrentIndex(1);
        dialog->findChild<QLineEdit*>("missingText")->setText("n/a");
        chosen = dialog->selections();
        EXPECT_TRUE(dialog->saveSelections(sbt));
        dialog->setSelections(BatchSelections::empty());
        EXPECT_NE(dialog->selections(), chosen);
        EXPECT_TRUE(dialog->loadSelections(sbt));
        EXPECT_EQ(dialog->selections(), chosen);
        groups->setCurrentRow(1);
        EXPECT_EQ(variables->item(1)->checkState(), Qt::Checked);
        dialog->reject();
    });
    pressOnMessage("OK"); // "Selections saved in ..."
    run("ID_TOOLS_RDF");
    EXPECT_EQ(chosen.speaker, BatchSelections::kOtherSpeaker);
    EXPECT_EQ(chosen.missingText, "n/a");
    EXPECT_FALSE(chosen.general[2]);
    ASSERT_EQ(messages.size(), 1);
    EXPECT_TRUE(messages[0].startsWith("Selections saved in ")) << messages[0].toStdString();
}

TEST_F(ToolsTest, BatchRunWritesTheFilesAndShowsTheGrid) {
    const QString dir = folder({{"park.tvi", kPark}, {"zoo.tvi", kZoo}});
    const QString out = tempPath("study.csv");
    whenModal([&](QWidget* w) {
        auto* dialog = qobject_cast<CBatchDialog*>(w);
        ASSERT_NE(dialog, nullptr);
        dialog->picker().setFolder(dir);
        dialog->setOutput(out);
        EXPECT_TRUE(dialog->runBatch());
        dialog->accept();
    });
    run("ID_TOOLS_RDF");
    EXPECT_TRUE(QFile::exists(out));
    EXPECT_TRUE(QFile::exists(tempPath("study_RDFKey.csv")));
    const QString text = reportText();
    EXPECT_TRUE(text.contains("Filename")) << text.toStdString();
    EXPECT_TRUE(text.contains("park")) << text.toStdString();
    EXPECT_TRUE(text.contains("zoo")) << text.toStdString();
}

QByteArray bytesOf(const QString& path) {
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

TEST_F(ToolsTest, DatabaseBuiltFromTheDialogEqualsTaviDbAdd) {
    const QString dir = folder({{"park.tvi", kPark}, {"zoo.tvi", kZoo}, {"broken.tvi", kBroken}});
    const QString gui = tempPath("gui.tvidb");
    int added = -1;
    whenModal([&](QWidget* w) {
        auto* dialog = qobject_cast<CDBBuildDialog*>(w);
        ASSERT_NE(dialog, nullptr);
        EXPECT_EQ(dialog->windowTitle(), "Build Reference Database");
        EXPECT_TRUE(dialog->findChild<QCheckBox*>("deidentify")->isChecked());
        dialog->setDatabase(gui);
        dialog->findChild<QLineEdit*>("context")->setText("Narration");
        dialog->findChild<QCheckBox*>("enforceContext")->setChecked(true);
        dialog->picker().setFolder(dir);
        dialog->addTranscripts();
        added = dialog->lastResult().counters.added;
        EXPECT_EQ(dialog->findChild<QListWidget*>("records")->count(), 2);
        dialog->accept();
    });
    pressOnMessage("OK"); // broken.tvi contains errors - not stored
    pressOnMessage("OK"); // the summary
    run("ID_TOOLS_BUILD_DB");
    EXPECT_EQ(added, 2);
    EXPECT_EQ(messages,
              (QStringList{QDir(dir).filePath("broken.tvi") + " contains errors - not stored",
                           "2 records added (1 with errors)"}));

    const QString cli = tempPath("cli.tvidb");
    const QString settings = tempPath("cli-settings");
    QDir().mkpath(settings);
    const std::string tavi =
        std::string("'") + TAVI_BINARY + "' --settings-dir '" + settings.toStdString() + "' db ";
    ASSERT_EQ(std::system(
                  (tavi + "create '" + cli.toStdString() + "' --context Narration >/dev/null 2>&1")
                      .c_str()),
              0);
    std::string files;
    for (const char* name : {"broken.tvi", "park.tvi", "zoo.tvi"})
        files += " '" + QDir(dir).filePath(QString::fromLatin1(name)).toStdString() + "'";
    const int status = std::system((tavi + "add '" + cli.toStdString() +
                                    "' --enforce-context --deidentify" + files + " >/dev/null 2>&1")
                                       .c_str());
    EXPECT_NE(status, -1);
    const QByteArray built = bytesOf(gui);
    EXPECT_FALSE(built.isEmpty());
    EXPECT_TRUE(built == bytesOf(cli)) << "the dialog's database differs from tavi db add's";
    // De-identified: no name or dates in either.
    EXPECT_FALSE(built.contains(QByteArray("K\0i\0m\0", 6)));
}

TEST_F(ToolsTest, BuilderKeepsItsHeaderEditsAndNeedsASamplingContext) {
    const QString path = tempPath("edit.tvidb");
    whenModal([&](QWidget* w) {
        auto* dialog = qobject_cast<CDBBuildDialog*>(w);
        ASSERT_NE(dialog, nullptr);
        dialog->setDatabase(path);
        dialog->findChild<QLineEdit*>("context")->setText("Conversation");
        dialog->findChild<QLineEdit*>("errorCodes")->setText("[EW] [EO]");
        dialog->addTranscripts(); // no transcripts: creates the database only
        dialog->setDatabase(path);
        EXPECT_EQ(dialog->findChild<QLineEdit*>("errorCodes")->text(), "[EW] [EO]");
        dialog->findChild<QLineEdit*>("context")->setText("  ");
        dialog->reject();
        EXPECT_TRUE(dialog->isVisible());
        dialog->findChild<QLineEdit*>("context")->setText("Play");
        dialog->reject();
        EXPECT_FALSE(dialog->isVisible());
    });
    pressOnMessage("OK"); // the summary: No records added
    pressOnMessage("OK"); // Missing sampling context
    run("ID_TOOLS_BUILD_DB");
    EXPECT_EQ(messages, (QStringList{"No records added", "Missing sampling context"}));
    whenModal([&](QWidget* w) {
        auto* dialog = qobject_cast<CDBBuildDialog*>(w);
        ASSERT_NE(dialog, nullptr);
        dialog->setDatabase(path);
        EXPECT_EQ(dialog->findChild<QLineEdit*>("context")->text(), "Play");
        dialog->accept();
    });
    run("ID_TOOLS_BUILD_DB");
}

} // namespace
} // namespace tavi::app::test
