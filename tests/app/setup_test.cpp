// The options dialogs of the Setup menu: validation that keeps a dialog open,
// Reset, Save as Default writing TAVI.ini, and reports following the choices.
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFile>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTest>

#include "app/anal_set_dialog.h"
#include "app/rept_frame.h"
#include "app/rept_view.h"
#include "app/tavi_frame.h"
#include "app/tran_cut_dialog.h"
#include "app/window_size_dialog.h"
#include "app/word_base_dialog.h"
#include "app_fixture.h"

namespace tavi::app::test {
namespace {

QString userSettingsText(const CTAVIApp& app) {
    QFile f(QString::fromStdString(app.settings().userSettingsFile()));
    return f.open(QIODevice::ReadOnly) ? QString::fromUtf8(f.readAll()) : QString();
}

class SetupTest : public AppTest {
protected:
    QString standardMeasuresText() {
        whenModal([](QWidget* w) { qobject_cast<QDialog*>(w)->accept(); });
        frame->mdiArea().setActiveSubWindow(frame->transcriptFrames().front());
        run("ID_ANAL_SMR");
        CReptFrame* report = frame->activeReportFrame();
        return report ? report->view().toPlainText() : QString();
    }
};

TEST_F(SetupTest, AnalysisSetRefusesBadCodesChangesTheReportAndSavesAsDefault) {
    ASSERT_NE(frame->openTranscript(dataFile("park.tvi")), nullptr);
    const QString before = standardMeasuresText();

    whenModal([this](QWidget* w) {
        auto* dialog = qobject_cast<CAnalSetDialog*>(w);
        ASSERT_NE(dialog, nullptr);
        EXPECT_EQ(dialog->windowTitle(), "Current Analysis Set");
        dialog->findChild<QLineEdit*>("excludeCodes")->setText("EW, [bad code]");
        pressOnMessage("OK");
        QTest::mouseClick(dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok),
                          Qt::LeftButton);
        QTimer::singleShot(100, dialog, [this, dialog] {
            EXPECT_TRUE(dialog->isVisible()); // kept open
            dialog->findChild<QLineEdit*>("excludeCodes")->setText("");
            dialog->findChild<QCheckBox*>("excludeOneWord")->setChecked(true);
            pressOnMessage("Yes");
            pressOnMessage("OK");
            dialog->findChild<QPushButton*>("saveAsDefault")->click();
            QTimer::singleShot(100, dialog, [dialog] { dialog->accept(); });
        });
    });
    run("ID_SETUP_ASET");
    settle();
    ASSERT_EQ(messages.size(), 3);
    EXPECT_EQ(messages[0], "Error: illegal code specification");
    EXPECT_EQ(messages[1], "Would you like to save this analysis set as the program default?");
    EXPECT_EQ(messages[2],
              "Settings saved in " + QString::fromStdString(app->settings().userSettingsFile()));
    EXPECT_EQ(app->settings().analysisSet.excludeOneWord, 1);
    EXPECT_TRUE(userSettingsText(*app).startsWith("\xEF\xBB\xBF"
                                                  "ASET EXCLUDEONEWD\n"))
        << userSettingsText(*app).toStdString();

    const QString after = standardMeasuresText();
    EXPECT_NE(before, after); // one-word utterances left the analysis set
}

TEST_F(SetupTest, DefaultsCannotBeSavedWhereTheInstallationForbidsIt) {
    app->settings().customizeAllowed = false;
    whenModal([this](QWidget* w) {
        auto* dialog = qobject_cast<CWordBaseDialog*>(w);
        ASSERT_NE(dialog, nullptr);
        pressOnMessage("OK");
        dialog->findChild<QPushButton*>("saveAsDefault")->click();
        QTimer::singleShot(50, dialog, [dialog] { dialog->reject(); });
    });
    run("ID_SETUP_WBASE");
    settle();
    EXPECT_EQ(messages, QStringList{"Default settings cannot be saved on this computer."});
    EXPECT_TRUE(userSettingsText(*app).isEmpty());
}

TEST_F(SetupTest, WindowSizeMustLieBetweenTenAnd999) {
    whenModal([this](QWidget* w) {
        auto* dialog = qobject_cast<CWindowSizeDialog*>(w);
        ASSERT_NE(dialog, nullptr);
        dialog->setText("9");
        pressOnMessage("OK");
        dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
        QTimer::singleShot(100, dialog, [dialog] {
            dialog->setText("10");
            dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
        });
    });
    run("ID_ANSET_MATTR");
    settle();
    EXPECT_EQ(messages, QStringList{"Enter a number between 10 and 999."});
    EXPECT_EQ(app->settings().movingAverageWindow, 10);
}

TEST_F(SetupTest, TranscriptCutTakesEveryStartAndEndTypeAndResets) {
    whenModal([](QWidget* w) {
        auto* dialog = qobject_cast<CTranCutDialog*>(w);
        ASSERT_NE(dialog, nullptr);
        dialog->chooseStart(TranscriptCut::FromUtterance);
        dialog->findChild<QSpinBox*>("startUtterance")->setValue(3);
        dialog->chooseEnd(TranscriptCut::ToElapsedTime);
        dialog->findChild<QLineEdit*>("targetTime")->setText("1:15");
        dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
    });
    run("ID_SETUP_TCUT");
    const TranscriptCut& cut = app->settings().transcriptCut;
    EXPECT_EQ(cut.startType, TranscriptCut::FromUtterance);
    EXPECT_EQ(cut.startUtterance, 3);
    EXPECT_EQ(cut.endType, TranscriptCut::ToElapsedTime);
    EXPECT_EQ(cut.endTime, 75);

    whenModal([expected = cut](QWidget* w) {
        auto* dialog = qobject_cast<CTranCutDialog*>(w);
        EXPECT_EQ(dialog->values(), expected);
        dialog->findChild<QPushButton*>("reset")->click();
        EXPECT_TRUE(dialog->values().isEntireTranscript());
        dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
    });
    run("ID_SETUP_TCUT");
    EXPECT_TRUE(app->settings().transcriptCut.isEntireTranscript());
}

} // namespace
} // namespace tavi::app::test
