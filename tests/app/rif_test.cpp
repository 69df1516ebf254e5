// Root identification and grammatical-category codes in the desktop program:
// Identify Roots asks about each word and writes its choices as one edit that
// the checker accepts; the RIF editor imports a word list and saves the file;
// RIF Settings are saved as the "RIFSET" section; Insert Grammatical
// Category Codes codes every word and leaves a transcript without errors.
#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTableWidget>

#include "analysis/rif_file.h"
#include "app/rif_dialogs.h"
#include "app/tavi_doc.h"
#include "app/tavi_frame.h"
#include "app_fixture.h"
#include "settings/rif_settings.h"

namespace tavi::app::test {
namespace {

class RifTest : public AppTest {
protected:
    // A root identification file of our own in a RIF folder of its own.
    void useRifFile(const char* contents) {
        QFile f(tempPath("test.rif"));
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        f.write(contents);
        f.close();
        app->settings().folders.rif = temp->path().toStdString() + "/";
        app->settings().replaceSectionLines("RIFSET", {"RIFSET FILEPRIMARY test.rif"});
    }
    QString text(CTAVIFrame* f) { return f->doc().document()->toPlainText(); }
    bool hasErrors(CTAVIFrame* f) {
        return analyseText(f->doc().utf8Text(), app->analysisContext()).hasErrors();
    }
};

void press(QWidget* w, const char* button) {
    QPushButton* b = w->findChild<QPushButton*>(QString::fromLatin1(button));
    ASSERT_NE(b, nullptr) << button;
    b->click();
}

TEST_F(RifTest, IdentifyRootsAsksForEachWordAndWritesOneUndoableEdit) {
    app->settings().folders.rif = temp->path().toStdString() + "/";
    app->settings().replaceSectionLines("RIFSET", {"RIFSET FILEPRIMARY missing.rif"});
    const QString original = QStringLiteral("$ Child, Examiner\n"
                                            "C I went home.\n"
                                            "C she went/3s and saw mice.\n"
                                            "C Went.\n");
    CTAVIFrame* f = frame->newTranscript(original);
    pressOnMessage("OK");
    run("ID_EDIT_IDENTIFY_ROOTS");
    ASSERT_EQ(messages.size(), 1);
    EXPECT_TRUE(messages[0].startsWith("Unable to open root identification file ("))
        << messages[0].toStdString();
    messages.clear();

    useRifFile("went:go:\nsaw:see,saw:\nmice:mouse:\n");
    // "went": the first choice, for every later "went" too.
    whenModal([](QWidget* w) {
        ASSERT_NE(qobject_cast<CIdentifyRootsDialog*>(w), nullptr);
        EXPECT_TRUE(w->findChild<QLabel*>("utterance")->text().contains("<b><u>went</u></b>"));
        w->findChild<QCheckBox*>("replaceAll")->setChecked(true);
        press(w, "replace");
    });
    // "saw": the second of its two roots.
    whenModal([](QWidget* w) {
        auto* choices = w->findChild<QListWidget*>("choices");
        ASSERT_EQ(choices->count(), 2);
        choices->setCurrentRow(1);
        press(w, "replace");
    });
    whenModal([](QWidget* w) { press(w, "skip"); }); // "mice"
    pressOnMessage("OK");
    run("ID_EDIT_IDENTIFY_ROOTS");
    EXPECT_EQ(text(f), "$ Child, Examiner\n"
                       "C I went|go home.\n"
                       "C she went|go/3s and saw|saw mice.\n"
                       "C Went|go.\n");
    ASSERT_EQ(messages.size(), 1);
    EXPECT_EQ(messages[0], "4 words given a root identification or replaced");
    EXPECT_FALSE(hasErrors(f));

    // A second run asks only about what is left; Cancel changes nothing.
    whenModal([](QWidget* w) {
        EXPECT_TRUE(w->findChild<QLabel*>("utterance")->text().contains("<b><u>mice</u></b>"));
        qobject_cast<QDialog*>(w)->reject();
    });
    run("ID_EDIT_IDENTIFY_ROOTS");
    EXPECT_EQ(text(f).count('|'), 4);

    f->doc().document()->undo();
    EXPECT_EQ(text(f), original);
}

TEST_F(RifTest, TheTranscriptsLanguageChoosesTheFile) {
    useRifFile("went:go:\n");
    QFile spanish(tempPath("es.rif"));
    ASSERT_TRUE(spanish.open(QIODevice::WriteOnly));
    spanish.write("fue:ir,ser:\n");
    spanish.close();
    app->settings().replaceSectionLines(
        "RIFSET",
        {"RIFSET FILEPRIMARY test.rif", "RIFSET FILEALT1 es.rif", "RIFSET LANGALT1 Spanish"});
    CTAVIFrame* f = frame->newTranscript(
        QStringLiteral("$ Child, Examiner\n+ Language: spanish\nC fue went.\n"));
    whenModal([](QWidget* w) {
        auto* choices = w->findChild<QListWidget*>("choices");
        ASSERT_EQ(choices->count(), 2);
        choices->setCurrentRow(1);
        press(w, "replace");
    });
    pressOnMessage("OK");
    run("ID_EDIT_IDENTIFY_ROOTS");
    EXPECT_TRUE(text(f).endsWith("C fue|ser went.\n")) << text(f).toStdString();

    // The editor opens the file of the active transcript's language.
    whenModal([this](QWidget* w) {
        EXPECT_EQ(qobject_cast<CRifEditorDialog*>(w)->path(), tempPath("es.rif"));
        qobject_cast<QDialog*>(w)->reject();
    });
    run("ID_EDSET_RIF_EDIT");
}

TEST_F(RifTest, EditorImportsAWordListFindsAndSaves) {
    useRifFile("went:go:\n");
    QFile list(tempPath("words.txt"));
    ASSERT_TRUE(list.open(QIODevice::WriteOnly));
    const std::string longWord(45, 'w');
    list.write(("ran:run:\nwent:go,walk:\n" + longWord + ":x:\n").c_str());
    list.close();
    const QString listPath = list.fileName();

    whenModal([this, listPath](QWidget* w) {
        auto* editor = qobject_cast<CRifEditorDialog*>(w);
        ASSERT_NE(editor, nullptr);
        EXPECT_EQ(editor->path(), tempPath("test.rif"));
        auto* table = editor->findChild<QTableWidget*>("words");
        EXPECT_EQ(table->rowCount(), 1);
        chooseFile(listPath);
        pressOnMessage("OK"); // the cut word
        pressOnMessage("OK"); // the count
        press(editor, "import");
        EXPECT_EQ(table->rowCount(), 3);
        EXPECT_TRUE(editor->modified());
        editor->find("RA");
        EXPECT_EQ(table->item(table->currentRow(), 0)->text(), "ran");
        pressOnMessage("OK");
        press(editor, "save");
        editor->reject();
    });
    run("ID_EDSET_RIF_EDIT");
    ASSERT_EQ(messages.size(), 3);
    EXPECT_EQ(messages[0], QString::fromStdString("Word '" + std::string(39, 'w') +
                                                  "' truncated to 39 characters"));
    EXPECT_EQ(messages[1], "3 words added or replaced");
    EXPECT_EQ(messages[2], "RIF file saved in " + tempPath("test.rif"));
    std::optional<RifFileContents> saved = readRifFile(tempPath("test.rif").toStdString());
    ASSERT_TRUE(saved);
    EXPECT_EQ(saved->words.size(), 3u);
    EXPECT_EQ(saved->words.at("went").definitions, (std::vector<std::string>{"go", "walk"}));
}

TEST_F(RifTest, EditorAsksBeforeLosingChangesAndRefusesABrokenRow) {
    useRifFile("went:go:\n");
    whenModal([this](QWidget* w) {
        auto* editor = qobject_cast<CRifEditorDialog*>(w);
        auto* table = editor->findChild<QTableWidget*>("words");
        press(editor, "add");
        table->item(1, 0)->setText("a:b");
        pressOnMessage("OK");     // the broken row
        pressOnMessage("Cancel"); // "Save the changes ...?" on close
        press(editor, "save");
        editor->reject();
        EXPECT_TRUE(editor->isVisible());
        table->item(1, 0)->setText("ab");
        pressOnMessage("No");
        editor->reject();
    });
    run("ID_EDSET_RIF_EDIT");
    ASSERT_EQ(messages.size(), 3);
    EXPECT_TRUE(messages[0].startsWith("Row 2: a word may not hold")) << messages[0].toStdString();
    EXPECT_EQ(messages[1], "Save the changes to " + tempPath("test.rif") + "?");
    EXPECT_EQ(readRifFile(tempPath("test.rif").toStdString())->words.size(), 1u);
}

TEST_F(RifTest, TheProgramsOwnFileIsSavedAsACopy) {
    const QString shipped =
        QString::fromStdString(app->settings().folders.sharedData) + "English.rif";
    QFile original(shipped);
    ASSERT_TRUE(original.open(QIODevice::ReadOnly));
    const QByteArray before = original.readAll();
    original.close();
    whenModal([this, shipped](QWidget* w) {
        auto* editor = qobject_cast<CRifEditorDialog*>(w);
        EXPECT_EQ(editor->path(), shipped);
        auto* table = editor->findChild<QTableWidget*>("words");
        press(editor, "add");
        table->item(table->rowCount() - 1, 0)->setText("wugs");
        chooseFile(tempPath("mine.rif"));
        pressOnMessage("OK"); // saved
        pressOnMessage("OK"); // where files are looked for
        press(editor, "save");
        EXPECT_EQ(editor->path(), tempPath("mine.rif"));
        editor->reject();
    });
    run("ID_EDSET_RIF_EDIT");
    ASSERT_EQ(messages.size(), 2);
    EXPECT_EQ(messages[0], "RIF file saved in " + tempPath("mine.rif"));
    ASSERT_TRUE(original.open(QIODevice::ReadOnly));
    EXPECT_EQ(original.readAll(), before);
    std::optional<RifFileContents> copy = readRifFile(tempPath("mine.rif").toStdString());
    ASSERT_TRUE(copy);
    EXPECT_TRUE(copy->words.count("wugs"));
    EXPECT_TRUE(copy->words.count("went"));
}

TEST_F(RifTest, SettingsAreSavedAsTheRifsetSection) {
    whenModal([this](QWidget* w) {
        auto* dialog = qobject_cast<CRifSettingsDialog*>(w);
        ASSERT_NE(dialog, nullptr);
        EXPECT_EQ(dialog->findChild<QLineEdit*>("file0")->text(), "English.rif");
        dialog->findChild<QLineEdit*>("language1")->setText("Spanish");
        dialog->findChild<QLineEdit*>("file1")->setText("Spanish.rif");
        dialog->findChild<QCheckBox*>("replaceAll")->setChecked(true);
        pressOnMessage("Yes");
        pressOnMessage("OK");
        press(dialog, "saveAsDefault");
        dialog->accept();
    });
    run("ID_EDSET_RIF_SETTINGS");
    const RifSettings rif = rifSettings(app->settings());
    EXPECT_EQ(rif.languages[1], "Spanish");
    EXPECT_EQ(rif.files[1], "Spanish.rif");
    EXPECT_TRUE(rif.replaceAll);
    QFile ini(QString::fromStdString(app->settings().userSettingsFile()));
    ASSERT_TRUE(ini.open(QIODevice::ReadOnly));
    const QString saved = QString::fromUtf8(ini.readAll());
    EXPECT_TRUE(saved.contains("RIFSET FILEALT1 Spanish.rif")) << saved.toStdString();
    EXPECT_TRUE(saved.contains("RIFSET REPLACEALL_YES"));
}

TEST_F(RifTest, GrammaticalCategoryCodesOnEveryWordLeaveNoErrors) {
    const QString original = QStringLiteral("$ Child, Examiner\n"
                                            "C the dog ran home.\n"
                                            "E what did you see?\n"
                                            "C I (um) saw a big cat/s [EU].\n");
    CTAVIFrame* f = frame->newTranscript(original);
    whenModal([](QWidget* w) {
        ASSERT_NE(qobject_cast<CInsertGcDialog*>(w), nullptr);
        w->findChild<QComboBox*>("speaker")->setCurrentIndex(2); // both
        qobject_cast<QDialog*>(w)->accept();
    });
    pressOnMessage("OK");
    run("ID_EDIT_INSERT_GC");
    ASSERT_EQ(messages.size(), 1);
    EXPECT_EQ(messages[0], "13 grammatical category codes inserted for review");
    const QString coded = text(f);
    EXPECT_TRUE(coded.contains("C the[GC:DET] dog[GC:NOUN]")) << coded.toStdString();
    EXPECT_TRUE(coded.contains("(um) saw[GC:")) << coded.toStdString();
    EXPECT_FALSE(hasErrors(f)) << coded.toStdString();

    // Run again, skipping coded words: nothing left.
    whenModal([](QWidget* w) { qobject_cast<QDialog*>(w)->accept(); });
    pressOnMessage("OK");
    run("ID_EDIT_INSERT_GC");
    EXPECT_EQ(messages.last(), "No grammatical category codes inserted");
    f->doc().document()->undo();
    EXPECT_EQ(text(f), original);
}

} // namespace
} // namespace tavi::app::test
