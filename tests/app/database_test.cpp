// The Database menu through the real dialogs: choosing a transcript's
// database samples (lists from the database, the checks that keep the dialog
// open, the warnings), the menu's counts, the reports against the samples,
// and the SD interval of Setup saved as the default.
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFile>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include "app/dbp_set_dialog.h"
#include "app/normative_graph_dialog.h"
#include "app/rept_doc.h"
#include "app/rept_frame.h"
#include "app/rept_view.h"
#include "app/sd_interval_dialog.h"
#include "app/tavi_doc.h"
#include "app/tavi_frame.h"
#include "app/transcript_peers.h"
#include "app_fixture.h"

namespace tavi::app::test {
namespace {

const QString kSamples = QStringLiteral(TAVI_SOURCE_DATA_DIR "/samples/");

QStringList items(const QComboBox* box) {
    QStringList all;
    for (int i = 0; i < box->count(); ++i)
        all << box->itemText(i);
    return all;
}

class DatabaseTest : public AppTest {
protected:
    void SetUp() override {
        AppTest::SetUp();
        transcript = frame->openTranscript(kSamples + "conversation-age5.tvi");
        ASSERT_NE(transcript, nullptr);
    }

    // Chooses the demonstration database with an age span of 36 months and
    // the samples of one location.
    void selectSamples(const char* location = "Home") {
        whenModal([location](QWidget* w) {
            auto* dialog = qobject_cast<CDBPSetDialog*>(w);
            ASSERT_NE(dialog, nullptr);
            dialog->setDatabase(kSamples + "demo-conversation.tvidb");
            dialog->findChild<QLineEdit*>("ageSpan")->setText("36");
            auto* place = dialog->findChild<QComboBox*>("location");
            place->setCurrentIndex(place->findText(QString::fromLatin1(location)));
            dialog->accept();
        });
        run("ID_DB_SELECT");
    }

    QString reportText(const char* id) {
        run(id);
        CReptFrame* report = frame->activeReportFrame();
        const QString text = report ? report->view().toPlainText() : QString();
        frame->mdiArea().setActiveSubWindow(transcript);
        return text;
    }

    CTAVIFrame* transcript = nullptr;
};

TEST_F(DatabaseTest, SelectionDialogFillsItsListsChecksItsFieldsAndCountsTheSamples) {
    frame->updateCommands();
    EXPECT_EQ(action("ID_DB_SELECT")->text(), "Select &Database Samples and Settings");
    for (const char* id : {"ID_DB_SMR", "ID_DB_PERF", "ID_DB_GOALS"})
        EXPECT_FALSE(action(id)->isEnabled()) << id << " before any samples are selected";

    whenModal([this](QWidget* w) {
        auto* dialog = qobject_cast<CDBPSetDialog*>(w);
        ASSERT_NE(dialog, nullptr);
        EXPECT_EQ(dialog->windowTitle(), "Select Database Samples for conversation-age5.tvi");
        EXPECT_EQ(dialog->findChild<QLabel*>("databaseLine")->text(), "Database: NONE");

        dialog->setDatabase(kSamples + "demo-conversation.tvidb");
        EXPECT_EQ(dialog->findChild<QLabel*>("databaseLine")->text(),
                  "Database: demo-conversation.tvidb     Sampling context: Conversation");
        EXPECT_EQ(items(dialog->findChild<QComboBox*>("subgroup")), QStringList({"<all>", "Demo"}));
        EXPECT_EQ(items(dialog->findChild<QComboBox*>("location")),
                  QStringList({"<all>", "Clinic", "Home", "School"}));
        // The transcript's own amounts name the equating options.
        EXPECT_EQ(dialog->findChild<QRadioButton*>("equatingWords")->text(),
                  "Same number of total words (285 NTW)");
        EXPECT_TRUE(dialog->findChild<QRadioButton*>("equatingWords")->isChecked());
        EXPECT_EQ(dialog->findChild<QLabel*>("criteria")->text(),
                  "SELECT DATABASE SAMPLES - Age +/- 6 months (4;8 - 5;8)");
        EXPECT_EQ(dialog->findChild<QLabel*>("matchCount")->text(), "1/16 samples match");

        // The target is a boy: choosing girls is warned about and kept.
        dialog->findChild<QCheckBox*>("useGender")->setChecked(true);
        dialog->findChild<QLineEdit*>("gender")->setText("F");
        EXPECT_FALSE(dialog->findChild<QLabel*>("genderWarning")->isHidden());
        EXPECT_TRUE(dialog->findChild<QLabel*>("criteria")->text().endsWith(", Female"));
        dialog->findChild<QLineEdit*>("gender")->setText("M");
        EXPECT_TRUE(dialog->findChild<QLabel*>("genderWarning")->isHidden());
        dialog->findChild<QCheckBox*>("useGender")->setChecked(false);

        // A span outside 1 to 60 keeps the dialog open with the core's message.
        dialog->findChild<QLineEdit*>("ageSpan")->setText("61");
        pressOnMessage("OK");
        dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
        QTimer::singleShot(100, dialog, [dialog] {
            EXPECT_TRUE(dialog->isVisible());
            dialog->findChild<QLineEdit*>("ageSpan")->setText("36");
            EXPECT_EQ(dialog->findChild<QLabel*>("matchCount")->text(), "9/16 samples match");
            dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
        });
    });
    run("ID_DB_SELECT");
    settle();
    EXPECT_EQ(messages, QStringList{"Enter an age plus or minus value between 1 and 60."});
    frame->updateCommands();
    EXPECT_EQ(action("ID_DB_SELECT")->text(),
              "Change &Database Samples and Settings (9/16 samples selected)");
    for (const char* id : {"ID_DB_SMR", "ID_DB_PERF", "ID_DB_GOALS"})
        EXPECT_TRUE(action(id)->isEnabled()) << id;

    // The dialog opens again on the transcript's own selection.
    whenModal([](QWidget* w) {
        auto* dialog = qobject_cast<CDBPSetDialog*>(w);
        ASSERT_NE(dialog, nullptr);
        EXPECT_EQ(dialog->findChild<QLineEdit*>("ageSpan")->text(), "36");
        EXPECT_EQ(dialog->selection().database,
                  (kSamples + "demo-conversation.tvidb").toStdString());
        dialog->reject();
    });
    run("ID_DB_SELECT");

    // Another transcript has no selection of its own.
    frame->newTranscript(QString());
    frame->updateCommands();
    EXPECT_EQ(action("ID_DB_SELECT")->text(), "Select &Database Samples and Settings");
    EXPECT_FALSE(action("ID_DB_SMR")->isEnabled());
}

TEST_F(DatabaseTest, ReportsCompareWithTheSelectedSamplesAndReuseTheirValues) {
    selectSamples("Home");
    const TranscriptPeers& peers = transcript->doc().peers();
    ASSERT_TRUE(peers.ready());
    EXPECT_EQ(peers.selected(), 4);

    const QString smr = reportText("ID_DB_SMR");
    EXPECT_TRUE(
        smr.contains("Database: demo-conversation.tvidb     Sampling context: Conversation"))
        << smr.toStdString();
    EXPECT_TRUE(smr.contains("SELECT DATABASE SAMPLES - Age +/- 36 months (2;2 - 8;2), Location "
                             "Home"));
    EXPECT_TRUE(smr.contains("4/16 samples selected"));
    EXPECT_TRUE(smr.contains("Database Mean"));

    const QString performance = reportText("ID_DB_PERF");
    EXPECT_TRUE(performance.contains("Performance Report")) << performance.toStdString();
    EXPECT_TRUE(performance.contains("4/16 samples selected"));
    const QString goals = reportText("ID_DB_GOALS");
    EXPECT_TRUE(goals.contains("GOAL BANK Based on Transcript")) << goals.toStdString();

    // One database per selection: the samples' values were calculated once.
    db::PeerDatabase* database =
        transcript->doc().peers().database(peers.selection->database, app->prompter());
    ASSERT_NE(database, nullptr);
    EXPECT_EQ(database->cache().size(), 4u);

    // The transcript alone: the Performance Report without the database.
    const QString alone = reportText("ID_ANAL_PERF");
    EXPECT_TRUE(alone.contains("Performance Report"));
    EXPECT_FALSE(alone.contains("samples selected"));
}

TEST_F(DatabaseTest, NoMatchingSamplesLeavesTheReportsGrey) {
    whenModal([this](QWidget* w) {
        auto* dialog = qobject_cast<CDBPSetDialog*>(w);
        ASSERT_NE(dialog, nullptr);
        dialog->setDatabase(kSamples + "demo-conversation.tvidb");
        dialog->findChild<QRadioButton*>("ageRangeChoice")->click();
        dialog->findChild<QLineEdit*>("ageFrom")->setText("20;0");
        dialog->findChild<QLineEdit*>("ageTo")->setText("15");
        EXPECT_EQ(dialog->findChild<QLabel*>("matchCount")->text(), "0/16 samples match");
        pressOnMessage("OK");
        dialog->accept();
    });
    run("ID_DB_SELECT");
    settle();
    EXPECT_EQ(messages, QStringList{"No samples match the criteria you selected."});
    frame->updateCommands();
    EXPECT_EQ(action("ID_DB_SELECT")->text(), "Select &Database Samples and Settings");
    EXPECT_FALSE(action("ID_DB_SMR")->isEnabled());
}

TEST_F(DatabaseTest, SdIntervalIsCheckedAndSavedAsTheDefaultForNewSelections) {
    whenModal([this](QWidget* w) {
        auto* dialog = qobject_cast<CSdIntervalDialog*>(w);
        ASSERT_NE(dialog, nullptr);
        dialog->findChild<QLineEdit*>("sdInterval")->setText("0");
        pressOnMessage("OK");
        dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
        QTimer::singleShot(100, dialog, [this, dialog] {
            EXPECT_TRUE(dialog->isVisible());
            dialog->findChild<QLineEdit*>("sdInterval")->setText("1.5");
            pressOnMessage("Yes");
            pressOnMessage("OK");
            dialog->findChild<QPushButton*>("saveAsDefault")->click();
            QTimer::singleShot(100, dialog, [dialog] { dialog->accept(); });
        });
    });
    run("ID_ANSET_PCSD");
    settle();
    ASSERT_EQ(messages.size(), 3);
    EXPECT_EQ(messages[1],
              "Would you like to save this SD interval setting as the program default?");
    QFile ini(QString::fromStdString(app->settings().userSettingsFile()));
    ASSERT_TRUE(ini.open(QIODevice::ReadOnly));
    EXPECT_TRUE(ini.readAll().contains("SDINT 1.5\n"));

    whenModal([](QWidget* w) {
        auto* dialog = qobject_cast<CDBPSetDialog*>(w);
        ASSERT_NE(dialog, nullptr);
        EXPECT_EQ(dialog->findChild<QLineEdit*>("sdInterval")->text(), "1.5");
        EXPECT_EQ(dialog->selection().sdInterval, 1.5f);
        dialog->reject();
    });
    run("ID_DB_SELECT");
}

TEST_F(DatabaseTest, DatabaseSummariesExploreAndNormativeGraphs) {
    selectSamples("Home");
    const QString quick = reportText("ID_DB_QUICK");
    EXPECT_TRUE(quick.contains("QUICK LOOK")) << quick.toStdString();
    EXPECT_TRUE(quick.contains("4/16 samples selected"));
    EXPECT_TRUE(quick.contains("the database mean"));
    EXPECT_TRUE(reportText("ID_DB_SYNTAX").contains("DB Mean"));

    // The explore dialog takes the words and codes.
    whenModal([](QWidget* w) {
        auto* edit = w->findChild<QLineEdit*>("items");
        ASSERT_NE(edit, nullptr);
        edit->setText("the, [EW]");
        qobject_cast<QDialog*>(w)->accept();
    });
    const QString explore = reportText("ID_DB_EXPLORE_WC");
    EXPECT_TRUE(explore.contains("Database Word and Code List")) << explore.toStdString();
    EXPECT_TRUE(explore.contains("[EW]"));

    // Help > Normative Graphs: a measure, then the graph drawn from the samples.
    whenModal([](QWidget* w) {
        auto* dialog = qobject_cast<QInputDialog*>(w);
        ASSERT_NE(dialog, nullptr);
        EXPECT_EQ(dialog->textValue(), "MLU in Words (MLUw)");
        dialog->accept();
    });
    whenModal([](QWidget* w) {
        auto* dialog = qobject_cast<NormativeGraphDialog*>(w);
        ASSERT_NE(dialog, nullptr);
        EXPECT_EQ(dialog->windowTitle(), "MLU in Words by age");
        auto* graph = dialog->findChild<QLabel*>("graph");
        ASSERT_NE(graph, nullptr);
        EXPECT_FALSE(graph->pixmap().isNull());
        dialog->reject();
    });
    run("ID_HELP_GRAPHS");
    settle();
}

} // namespace
} // namespace tavi::app::test
