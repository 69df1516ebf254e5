// The Explore menu and Tools > Explore Multiple Transcripts through the real
// menus and dialogs: the criteria dialog and its settings, the list report,
// Find stepping through the found utterances, code insertion undone and
// deleted, and separate transcripts.
#include <QCheckBox>
#include <QDir>
#include <QFile>
#include <QInputDialog>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSpinBox>

#include "app/explore_dialog.h"
#include "app/rept_frame.h"
#include "app/rept_view.h"
#include "app/tavi_doc.h"
#include "app/tavi_frame.h"
#include "app/tavi_view.h"
#include "app_fixture.h"
#include "base/file_io.h"
#include "session/analysis_session.h"
#include "transcript/transcript_file.h"

namespace tavi::app::test {
namespace {

class ExploreTest : public AppTest {
protected:
    // Answers the criteria dialog: utterances of five words or more.
    void chooseLongUtterances() {
        whenModal([](QWidget* w) {
            auto* dialog = qobject_cast<CExploreDialog*>(w);
            ASSERT_NE(dialog, nullptr);
            dialog->findChild<QSpinBox*>(QStringLiteral("lengthFrom"))->setValue(5);
            dialog->accept();
        });
    }
    // Answers the next input dialog with a text, or with its first choice.
    void answerInput(const QString& text = QString()) {
        whenModal([text](QWidget* w) {
            auto* input = qobject_cast<QInputDialog*>(w);
            ASSERT_NE(input, nullptr);
            if (!text.isEmpty())
                input->setTextValue(text);
            input->accept();
        });
    }
    CTAVIFrame* openPark() { return frame->openTranscript(dataFile("park.tvi")); }
    int caretLine(CTAVIFrame* f) { return f->view().textCursor().blockNumber() + 1; }
};

TEST_F(ExploreTest, ListOpensAReportAndTheCriteriaAreKept) {
    ASSERT_NE(openPark(), nullptr);
    whenModal([](QWidget* w) {
        auto* dialog = qobject_cast<CExploreDialog*>(w);
        ASSERT_NE(dialog, nullptr);
        dialog->findChild<QPlainTextEdit*>(QStringLiteral("items"))->setPlainText("swing*\n[EW]");
        dialog->accept();
    });
    run("ID_EXPLORE_LIST");
    CReptFrame* report = frame->activeReportFrame();
    ASSERT_NE(report, nullptr);
    const QString text = report->view().toPlainText();
    EXPECT_TRUE(text.contains("8: C I (went) go/*ed on the swing.")) << text.toStdString();
    EXPECT_TRUE(text.contains("1 of 7 utterances found."));
    const std::vector<KeywordLine>& items = app->settings().sectionLines("YOLIST");
    ASSERT_EQ(items.size(), 2u);
    EXPECT_EQ(items[0].value, "swing*");

    // The dialog opens again with what was chosen.
    whenModal([](QWidget* w) {
        auto* dialog = qobject_cast<CExploreDialog*>(w);
        ASSERT_NE(dialog, nullptr);
        EXPECT_EQ(dialog->criteria().items, (std::vector<std::string>{"swing*", "[EW]"}));
        dialog->reject();
    });
    frame->openTranscript(dataFile("park.tvi"));
    run("ID_EXPLORE_LIST");
}

TEST_F(ExploreTest, FindStepsThroughTheFoundUtterancesAndWraps) {
    CTAVIFrame* f = openPark();
    ASSERT_NE(f, nullptr);
    chooseLongUtterances();
    run("ID_EXPLORE_FIND");
    EXPECT_EQ(caretLine(f), 8);
    run("ID_EXPLORE_FIND"); // no dialog while the transcript is unchanged
    EXPECT_EQ(caretLine(f), 11);
    run("ID_EXPLORE_FIND");
    EXPECT_EQ(caretLine(f), 16);
    run("ID_EXPLORE_FIND");
    EXPECT_EQ(caretLine(f), 8);
}

TEST_F(ExploreTest, InsertedCodesAreUndoneAndDeleted) {
    CTAVIFrame* f = openPark();
    ASSERT_NE(f, nullptr);
    const std::string original = f->doc().utf8Text();
    chooseLongUtterances();
    answerInput("LONG");
    answerInput(); // each found utterance
    pressOnMessage("OK");
    run("ID_EXPLORE_INSERT");
    EXPECT_EQ(messages.back(), "3 codes inserted");
    const std::string coded = f->doc().utf8Text();
    EXPECT_NE(coded.find("C I (went) go/*ed on the swing [LONG].\n"), std::string::npos);
    EXPECT_FALSE(analyseText(coded, app->analysisContext()).hasErrors());
    run("ID_EDIT_UNDO");
    EXPECT_EQ(f->doc().utf8Text(), original);
    run("ID_EDIT_REDO");
    EXPECT_EQ(f->doc().utf8Text(), coded);

    whenModal([](QWidget* w) {
        auto* input = qobject_cast<QInputDialog*>(w);
        ASSERT_NE(input, nullptr);
        EXPECT_EQ(input->textValue(), ""); // nothing deleted yet
        input->setTextValue("LONG");
        input->accept();
    });
    pressOnMessage("OK");
    run("ID_EDIT_DELETE_CODE");
    EXPECT_EQ(messages.back(), "3 codes deleted");
    EXPECT_EQ(f->doc().utf8Text(), original);

    // The next insertion offers the code inserted last.
    chooseLongUtterances();
    whenModal([](QWidget* w) {
        auto* input = qobject_cast<QInputDialog*>(w);
        ASSERT_NE(input, nullptr);
        EXPECT_EQ(input->textValue(), "LONG");
        input->reject();
    });
    run("ID_EXPLORE_INSERT");
}

TEST_F(ExploreTest, CriteriaSavedAsTheProgramDefault) {
    app->settings().customizeAllowed = true;
    ASSERT_NE(openPark(), nullptr);
    whenModal([this](QWidget* w) {
        auto* dialog = qobject_cast<CExploreDialog*>(w);
        ASSERT_NE(dialog, nullptr);
        dialog->findChild<QPlainTextEdit*>(QStringLiteral("items"))->setPlainText("swing*");
        pressOnMessage("Yes");
        pressOnMessage("OK");
        dialog->findChild<QPushButton*>(QStringLiteral("saveDefault"))->click();
        dialog->reject();
    });
    run("ID_EXPLORE_LIST");
    std::string ini;
    ASSERT_TRUE(readFile(app->settings().userSettingsFile(), ini));
    EXPECT_NE(ini.find("YOL WBSUT_OR\n"), std::string::npos) << ini;
    EXPECT_NE(ini.find("YOLIST swing*\n"), std::string::npos) << ini;
}

TEST_F(ExploreTest, SavedSeparateTranscriptOpensAndChecksClean) {
    ASSERT_NE(openPark(), nullptr);
    chooseLongUtterances();
    whenModal([](QWidget* w) {
        auto* comments = w->findChild<QCheckBox*>(QStringLiteral("comments"));
        ASSERT_NE(comments, nullptr);
        EXPECT_TRUE(w->findChild<QCheckBox*>(QStringLiteral("plusLines"))->isChecked());
        qobject_cast<QDialog*>(w)->accept();
    });
    chooseFile(tempPath("long.tvi"));
    run("ID_EXPLORE_SAVE");
    CTAVIFrame* saved = frame->activeTranscriptFrame();
    ASSERT_NE(saved, nullptr);
    const std::string text = saved->doc().utf8Text();
    EXPECT_EQ(splitTranscriptLines(text).size(), 8u) << text; // "$", four "+", three found
    TranscriptAnalysis kept = analyseText(text, app->analysisContext());
    EXPECT_FALSE(kept.hasErrors());
    EXPECT_EQ(kept.measures().find("TotNumUt")->asCount(), 3);
}

TEST_F(ExploreTest, ExploreMultipleListsEachFile) {
    chooseLongUtterances();
    chooseFile(dataFile("park.tvi"));
    run("ID_EMULT_LIST");
    CReptFrame* report = frame->activeReportFrame();
    ASSERT_NE(report, nullptr);
    const QString text = report->view().toPlainText();
    EXPECT_TRUE(text.contains("park.tvi"));
    EXPECT_TRUE(text.contains("3 of 7 utterances found.")) << text.toStdString();
    EXPECT_FALSE(app->settings().sectionLines("EMULT").empty());
    EXPECT_TRUE(app->settings().sectionLines("YOL").empty());
}

TEST_F(ExploreTest, ExploreMultipleInsertsIntoFilesKeepingABackup) {
    const QString copy = tempPath("park.tvi");
    ASSERT_TRUE(QFile::copy(dataFile("park.tvi"), copy));
    std::string before;
    ASSERT_TRUE(readFile(copy.toStdString(), before));
    chooseLongUtterances();
    answerInput("LONG");
    answerInput();
    chooseFile(copy);
    pressOnMessage("OK");
    run("ID_EMULT_INSERT");
    EXPECT_EQ(messages.back(), "park.tvi: 3 codes changed");
    std::string after;
    ASSERT_TRUE(readFile(copy.toStdString(), after));
    EXPECT_NE(after.find("the swing [LONG]."), std::string::npos);
    std::string backup;
    ASSERT_TRUE(readFile(backupPath(copy.toStdString(), app->backupDir().toStdString()), backup));
    EXPECT_EQ(backup, before);
}

TEST_F(ExploreTest, ExploreMultipleSavesSeparateTranscriptsButNeverOverTheirSource) {
    const QString folder = tempPath("separate");
    ASSERT_TRUE(QDir().mkpath(folder));
    const QString source = QDir(folder).filePath("park.tvi");
    ASSERT_TRUE(QFile::copy(dataFile("park.tvi"), source));
    chooseLongUtterances();
    whenModal([](QWidget* w) {
        auto* prefix = w->findChild<QLineEdit*>(QStringLiteral("prefix"));
        ASSERT_NE(prefix, nullptr);
        prefix->setText("long-");
        qobject_cast<QDialog*>(w)->accept();
    });
    chooseFile(source);
    chooseFile(folder);
    pressOnMessage("OK");
    run("ID_EMULT_SAVE");
    const QString target = QDir(folder).filePath("long-park.tvi");
    EXPECT_EQ(messages.back(), target + ": 3 utterances saved");
    TranscriptAnalysis separate = analyseFile(target.toStdString(), app->analysisContext());
    EXPECT_FALSE(separate.hasErrors());
    EXPECT_EQ(separate.measures().find("TotNumUt")->asCount(), 3);

    // An empty prefix would write the separate transcript over its source.
    chooseLongUtterances();
    whenModal([](QWidget* w) {
        w->findChild<QLineEdit*>(QStringLiteral("prefix"))->clear();
        qobject_cast<QDialog*>(w)->accept();
    });
    chooseFile(source);
    chooseFile(folder);
    pressOnMessage("OK");
    run("ID_EMULT_SAVE");
    EXPECT_EQ(messages.back(), "park.tvi: not saved over itself");
}

} // namespace
} // namespace tavi::app::test
