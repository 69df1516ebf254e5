// Setup > Lists and the analysis settings beside them: each editor changes
// its list, saves it as the program default when asked (the file checked line
// by line), and what it saved is what Insert Code, the reports and the next
// dialog use.
#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QInputDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTableWidget>

#include "app/analysis_settings_dialogs.h"
#include "app/insert_list_dialog.h"
#include "app/lists_dialogs.h"
#include "app/smr_variables_dialog.h"
#include "app/tavi_doc.h"
#include "app/tavi_frame.h"
#include "app/tavi_view.h"
#include "app_fixture.h"
#include "settings/word_list_settings.h"

namespace tavi::app::test {
namespace {

QStringList fileLines(const std::string& path) {
    QFile f(QString::fromStdString(path));
    if (!f.open(QIODevice::ReadOnly))
        return {};
    QString text = QString::fromUtf8(f.readAll());
    if (text.startsWith(QChar(0xFEFF)))
        text.remove(0, 1);
    return text.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

class ListsTest : public AppTest {
protected:
    // Answers the dialog that `command` opens: `change` edits it, then
    // "Save as Default" is answered Yes and OK, and the dialog is closed with OK.
    template <typename Dialog>
    void changeAndSave(const char* command, std::function<void(Dialog&)> change) {
        whenModal([this, change](QWidget* w) {
            auto* dialog = qobject_cast<Dialog*>(w);
            ASSERT_NE(dialog, nullptr) << w->metaObject()->className();
            change(*dialog);
            pressOnMessage("Yes");
            pressOnMessage("OK");
            dialog->template findChild<QPushButton*>("saveAsDefault")->click();
            QTimer::singleShot(100, dialog, [dialog] { dialog->accept(); });
        });
        run(command);
        settle();
    }
    QStringList userFile() const { return fileLines(app->settings().userSettingsFile()); }
    QString savedIn(const std::string& path) const {
        return QStringLiteral("List and settings saved in ") + QString::fromStdString(path);
    }
};

void setRow(QTableWidget& table, int row, const QString& first, const QString& second) {
    if (row >= table.rowCount())
        table.setRowCount(row + 1);
    table.setItem(row, 0, new QTableWidgetItem(first));
    table.setItem(row, 1, new QTableWidgetItem(second));
}

TEST_F(ListsTest, CodeListsWithDescriptionsFeedInsertCode) {
    changeAndSave<CCurrentListsDialog>("ID_LISTS_CODES", [](CCurrentListsDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), "Current Code Lists");
        EXPECT_EQ(dialog.findChild<QListWidget*>("entries")->count(), 17);
        dialog.showEntry(2);
        dialog.findChild<QLineEdit*>("title")->setText("Story codes");
        auto& table = *dialog.findChild<QTableWidget*>("items");
        setRow(table, 0, "[EW]", "word error");
        setRow(table, 1, "SET", "");
        setRow(table, 2, "CHAR", "character named");
        dialog.showEntry(0); // the edits of entry 2 are kept while another is shown
    });
    ASSERT_EQ(messages.size(), 2);
    EXPECT_EQ(messages[0], "Would you like to save this list and settings as the program default?");
    EXPECT_EQ(messages[1], savedIn(app->settings().userSettingsFile()));
    const QStringList saved = userFile();
    ASSERT_GE(saved.size(), 4);
    EXPECT_EQ(saved.mid(0, 4),
              (QStringList{"CURINSCODELIST REMOVEALL",
                           "CURINSCODELIST 2 [EW] word error [SET][CHAR] character named",
                           "CURINSCODELISTTITLE REMOVEALL", "CURINSCODELISTTITLE 2 Story codes"}));

    // Insert Code shows each code with its description and types the code alone.
    CTAVIFrame* f = frame->openTranscript(dataFile("park.tvi"));
    ASSERT_NE(f, nullptr);
    f->view().moveCursor(QTextCursor::End);
    whenModal([](QWidget* w) {
        auto* dialog = qobject_cast<CInsertListDialog*>(w);
        ASSERT_NE(dialog, nullptr);
        QStringList shown;
        for (int i = 0; i < dialog->list().count(); ++i)
            shown << dialog->list().item(i)->text();
        EXPECT_EQ(shown, (QStringList{"[EW]   word error", "[SET]", "[CHAR]   character named"}));
        dialog->list().setCurrentRow(2);
        dialog->accept();
    });
    run("ID_EDIT_INSERT_CODE");
    settle();
    const QString text = f->doc().document()->toPlainText();
    EXPECT_TRUE(text.endsWith("[CHAR]")) << text.right(40).toStdString();
    EXPECT_FALSE(text.contains("character named"));

    // Back to the program's list: the built-in codes, described.
    whenModal([](QWidget* w) {
        auto* dialog = qobject_cast<CCurrentListsDialog*>(w);
        ASSERT_NE(dialog, nullptr);
        dialog->programListButton()->click();
        EXPECT_EQ(dialog->lists().size(), 1u);
        EXPECT_EQ(dialog->findChild<QTableWidget*>("items")->item(0, 1)->text(), "word error");
        dialog->accept();
    });
    run("ID_LISTS_CODES");
    settle();
    const std::vector<InsertEntry> codes = currentInsertList(app->settings(), InsertKind::Code);
    ASSERT_FALSE(codes.empty());
    EXPECT_EQ(codes.front(), (InsertEntry{"[EW]   word error", "[EW]"}));
}

TEST_F(ListsTest, TextAndSymbolListsLoadFromFilesAndSave) {
    changeAndSave<CCurrentListsDialog>("ID_LISTS_TEXT", [](CCurrentListsDialog& dialog) {
        EXPECT_EQ(dialog.findChild<QListWidget*>("entries")->count(), 10);
        dialog.showEntry(9);
        dialog.findChild<QLineEdit*>("title")->setText("Prompt");
        dialog.findChild<QLineEdit*>("text")->setText("E Tell me more.");
    });
    EXPECT_EQ(userFile().mid(0, 4),
              (QStringList{"CURINSTEXT REMOVEALL", "CURINSTEXT 9 E Tell me more.",
                           "CURINSTITLE REMOVEALL", "CURINSTITLE 9 Prompt"}));
    EXPECT_EQ(currentInsertList(app->settings(), InsertKind::Text),
              (std::vector<InsertEntry>{{"Prompt: E Tell me more.", "E Tell me more."}}));

    QFile symbols(tempPath("symbols.txt"));
    ASSERT_TRUE(symbols.open(QIODevice::WriteOnly));
    symbols.write("\xC2\xB1\tplus or minus\n\n\xE2\x80\xA6\n");
    symbols.close();
    messages.clear();
    changeAndSave<CCurrentListsDialog>("ID_LISTS_SYMBOLS", [this](CCurrentListsDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), "Current Symbol List");
        chooseFile(tempPath("symbols.txt"));
        dialog.loadButton()->click();
        EXPECT_EQ(dialog.findChild<QTableWidget*>("items")->rowCount(), 2);
    });
    EXPECT_EQ(messages.back(), savedIn(app->settings().userSettingsFile()));
    EXPECT_EQ(userFile().mid(0, 3),
              (QStringList{"CURSYMBOLLIST REMOVEALL", "CURSYMBOLLIST \u00B1\tplus or minus",
                           "CURSYMBOLLIST \u2026"}));
    EXPECT_EQ(userFile().mid(3, 2),
              (QStringList{"CURINSTEXT REMOVEALL", "CURINSTEXT 9 E Tell me more."}));
    EXPECT_EQ(currentInsertList(app->settings(), InsertKind::Symbol).front(),
              (InsertEntry{"\u00B1    plus or minus", "\u00B1"}));
}

TEST_F(ListsTest, StandardWordListsSaveTitlesAndWordsToTheirOwnFile) {
    const std::string swlFile = app->settings().swlSettingsFile();
    changeAndSave<CStandardWordListsDialog>("ID_LISTS_SWL", [](CStandardWordListsDialog& dialog) {
        auto* title = dialog.findChild<QLineEdit*>("title");
        dialog.showList(0, 0);
        EXPECT_FALSE(title->isEnabled()); // the built-in lists keep their names
        EXPECT_FALSE(dialog.findChild<QPlainTextEdit*>("words")->toPlainText().isEmpty());
        dialog.showList(0, 13);
        EXPECT_TRUE(title->isEnabled());
        EXPECT_EQ(title->text(), "Extra List 1");
        title->setText("Feelings");
        dialog.findChild<QPlainTextEdit*>("words")->setPlainText("Happy\n\n  sad  \n$ fed   up\n");
        dialog.showList(1, 13);
        EXPECT_EQ(title->text(), "Extra List 1"); // titles are per language
        EXPECT_EQ(dialog.findChild<QListWidget*>("lists")->item(13)->text(), "Extra List 1");
        dialog.showList(0, 13);
        EXPECT_EQ(dialog.findChild<QListWidget*>("lists")->item(13)->text(), "Feelings");
    });
    ASSERT_EQ(messages.size(), 2);
    EXPECT_EQ(messages[1], savedIn(swlFile));
    const QStringList saved = fileLines(swlFile);
    EXPECT_EQ(saved.front(), "TITLE P_EXTRA1 Feelings");
    EXPECT_TRUE(saved.contains("P_EXTRA1 happy"));
    EXPECT_TRUE(saved.contains("P_EXTRA1 sad"));
    EXPECT_TRUE(saved.contains("P_EXTRA1 $ fed up"));
    // The program's other lists were saved with them.
    EXPECT_GT(saved.filter(QRegularExpression("^P_QUES ")).size(), 3);
    // The TAVI.ini sections are left alone.
    EXPECT_TRUE(userFile().filter("P_EXTRA1").isEmpty());
    const WordListSettings lists = parseWordListSettings(app->settings().swlSettingsLines);
    EXPECT_EQ(wordListTitle(lists, 0, 13), "Feelings");
}

TEST_F(ListsTest, TimingLinesAndDefaultDatabasesApplyAndSave) {
    changeAndSave<CTimingLinesDialog>("ID_ANSET_TIMING", [](CTimingLinesDialog& dialog) {
        EXPECT_EQ(dialog.flags(), (TimingLineFlags{true, true, true}));
        dialog.findChild<QCheckBox*>("subtract")->setChecked(false);
        dialog.findChild<QCheckBox*>("ignoreEqual")->setChecked(false);
    });
    EXPECT_EQ(app->settings().timingLines, (TimingLineFlags{false, true, false}));
    EXPECT_EQ(userFile().mid(0, 3),
              (QStringList{"TIMINGLINES SUBTRACT_NO", "TIMINGLINES IGNOREPLUS_YES",
                           "TIMINGLINES IGNOREEQUAL_NO"}));
    EXPECT_EQ(messages.back(),
              "Settings saved in " + QString::fromStdString(app->settings().userSettingsFile()));

    changeAndSave<CDefaultDatabaseDialog>("ID_ANSET_DEFDB", [](CDefaultDatabaseDialog& dialog) {
        dialog.findChild<QLineEdit*>("databaseName")->setText("demo-narrative.tvidb");
        dialog.findChild<QLineEdit*>("databasePath")->setText("/data/samples/");
        dialog.findChild<QCheckBox*>("pcsdInclude")->setChecked(true);
    });
    EXPECT_EQ(userFile().mid(0, 6),
              (QStringList{"DEFDBNAME demo-narrative.tvidb", "DEFDBPATH /data/samples/",
                           "PCSD INCLUDE_YES", "TIMINGLINES SUBTRACT_NO",
                           "TIMINGLINES IGNOREPLUS_YES", "TIMINGLINES IGNOREEQUAL_NO"}));
    EXPECT_EQ(app->settings().databaseDefaults.at("DEFDBNAME"), "demo-narrative.tvidb");
    EXPECT_TRUE(app->settings().pcsdInclude);

    // Reset clears the default; saving again drops the old lines.
    changeAndSave<CDefaultDatabaseDialog>("ID_ANSET_DEFDB", [](CDefaultDatabaseDialog& dialog) {
        EXPECT_EQ(dialog.findChild<QLineEdit*>("databaseName")->text(), "demo-narrative.tvidb");
        dialog.resetButton()->click();
    });
    EXPECT_EQ(userFile().mid(0, 2), (QStringList{"PCSD INCLUDE_NO", "TIMINGLINES SUBTRACT_NO"}));
    EXPECT_FALSE(app->settings().databaseDefaults.contains("DEFDBNAME"));
}

TEST_F(ListsTest, ReportVariablesAndSiSpeakerAreSavedAsDefaults) {
    ASSERT_NE(frame->openTranscript(dataFile("park.tvi")), nullptr);
    whenModal([this](QWidget* w) {
        auto* dialog = qobject_cast<CSmrVariablesDialog*>(w);
        ASSERT_NE(dialog, nullptr);
        dialog->findChild<QCheckBox*>("TotNumUt")->setChecked(false);
        pressOnMessage("Yes");
        pressOnMessage("OK");
        dialog->findChild<QPushButton*>("saveAsDefault")->click();
        QTimer::singleShot(100, dialog, [dialog] { dialog->reject(); });
    });
    run("ID_ANAL_SMR");
    settle();
    ASSERT_EQ(messages.size(), 2);
    EXPECT_EQ(messages[0], "Would you like to save these report settings as the program default?");
    EXPECT_EQ(userFile().front(), "SMR TotNumUt_NO");
    EXPECT_EQ(userFile().filter(QRegularExpression("^SMR ")).size(), 36);
    EXPECT_FALSE(app->smrVariables.chosen[0]);

    whenModal([](QWidget* w) {
        auto* dialog = qobject_cast<QInputDialog*>(w);
        ASSERT_NE(dialog, nullptr);
        dialog->setTextValue("2nd Speaker");
        dialog->accept();
    });
    pressOnMessage("Yes");
    pressOnMessage("OK");
    run("ID_EDSET_SI");
    settle();
    EXPECT_EQ(app->settings().siCodeSpeaker, 1);
    EXPECT_EQ(userFile().front(), "SICODESET SPEAKER 2");

    // The next start of the program begins with both.
    CTAVIApp restarted;
    EXPECT_FALSE(restarted.smrVariables.chosen[0]);
    EXPECT_TRUE(restarted.smrVariables.chosen[1]);
    EXPECT_EQ(restarted.settings().siCodeSpeaker, 1);
}

} // namespace
} // namespace tavi::app::test
