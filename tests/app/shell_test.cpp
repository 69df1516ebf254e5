// The main frame's menus, context menus and transcript windows, driven
// through the real actions and dialogs.
#include <QFile>
#include <QLineEdit>
#include <QListWidget>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QTest>
#include <QTextBlock>

#include "app/find_replace_dialog.h"
#include "app/insert_list_dialog.h"
#include "app/new_transcript_dialog.h"
#include "app/tavi_doc.h"
#include "app/tavi_frame.h"
#include "app/tavi_view.h"
#include "app_fixture.h"

namespace tavi::app::test {
namespace {

QStringList menuTitles(const QMenuBar* bar) {
    QStringList titles;
    for (QAction* a : bar->actions())
        titles << a->text();
    return titles;
}

QMenu* topMenu(CMainFrame& frame, const QString& title) {
    for (QAction* a : frame.menuBar()->actions())
        if (a->text() == title)
            return a->menu();
    return nullptr;
}

QByteArray fileBytes(const QString& path) {
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

using ShellTest = AppTest;

TEST_F(ShellTest, MainMenuHasItsMenusCommandsAndHeadingsInOrder) {
    EXPECT_EQ(frame->windowTitle(), "TAVI");
    EXPECT_EQ(menuTitles(frame->menuBar()),
              QStringList({"&File", "&Edit", "&Analyze", "&Database", "E&xplore", "&Link", "&Tools",
                           "&Setup", "&Window", "&Help"}));
    EXPECT_EQ(action("ID_FILE_NEW")->text(), "&New");
    EXPECT_EQ(action("ID_FILE_NEW")->shortcut(), QKeySequence("Ctrl+N"));
    EXPECT_EQ(action("ID_EDIT_CHECK")->shortcut(), QKeySequence("Ctrl+K"));
    EXPECT_EQ(action("ID_EDIT_INSERT_SYMBOL")->shortcut(), QKeySequence("Ctrl+Q"));

    // The Analyze menu opens with the "Overview" heading, which cannot be chosen.
    QMenu* analyze = topMenu(*frame, "&Analyze");
    ASSERT_NE(analyze, nullptr);
    QAction* first = analyze->actions().front();
    EXPECT_EQ(first->text(), "Overview");
    EXPECT_FALSE(first->isEnabled());
    EXPECT_EQ(analyze->actions()[1]->objectName(), "ID_ANAL_SMR");

    // A command that cannot be built keeps its place, disabled, and says why.
    QAction* corpus = action("ID_FILE_IMPORT_CP");
    EXPECT_FALSE(corpus->isEnabled());
    EXPECT_EQ(corpus->statusTip(), "Import a C&P CORPUS file (not available: no description of "
                                   "this format exists)");
    EXPECT_EQ(action("ID_ANAL_PERF")->statusTip(), "Performance Report");
    EXPECT_EQ(action("ID_ANAL_CODES")->statusTip(), "Code Summary Report");

    // Commands that need a transcript wait for one.
    EXPECT_FALSE(action("ID_FILE_SAVE")->isEnabled());
    EXPECT_TRUE(action("ID_FILE_OPEN")->isEnabled());
}

TEST_F(ShellTest, ContextMenusOfBothViewsHaveTheirOwnTexts) {
    ASSERT_NE(frame->openTranscript(dataFile("park.tvi")), nullptr);
    QMenu* menu = frame->makeContextMenu(transcriptContextTable());
    QStringList texts;
    for (QAction* a : menu->actions())
        if (!a->isSeparator())
            texts << a->text();
    EXPECT_EQ(texts, QStringList({"&Find && Replace", "Go to &Entry Number", "Chec&k for Errors",
                                  "Undo", "Redo", "Cut", "Copy", "Paste", "Select &All", "&Save",
                                  "Save &As...", "Prin&t...", "Add to PDF &Batch...",
                                  "C&lose PDF Batch", "&Link...", "U&nlink", "&Help"}));
    delete menu;
    QStringList report;
    for (const MenuEntry& e : reportContextTable())
        if (e.kind == EntryKind::Item)
            report << QString::fromUtf8(e.text);
    EXPECT_EQ(report, QStringList({"&Save", "Save &As...", "Prin&t...", "Add to PDF &Batch",
                                   "C&lose PDF Batch", "&Help"}));
}

TEST_F(ShellTest, NewTranscriptComposesItsFirstLinesAndAsksToSaveOnClose) {
    whenModal([](QWidget* w) {
        auto* dialog = qobject_cast<CNewTranscriptDialog*>(w);
        ASSERT_NE(dialog, nullptr);
        dialog->setField("TSPEAKER", "Child");
        dialog->setField("OSPEAKER", "Examiner, Adult");
        dialog->setField("Name", "Ann");
        dialog->setField("INITTIME", "0:00");
        dialog->accept();
    });
    run("ID_FILE_NEW");
    CTAVIFrame* f = frame->activeTranscriptFrame();
    ASSERT_NE(f, nullptr);
    EXPECT_EQ(f->doc().document()->toPlainText(), "$ Child, Examiner Adult\n+ Name: Ann\n- 0:00\n");
    EXPECT_TRUE(f->doc().isModified());
    EXPECT_EQ(f->doc().title(), "Tran1");
    EXPECT_TRUE(f->view().textCursor().atEnd());

    pressOnMessage("Cancel");
    run("ID_FILE_CLOSE");
    EXPECT_EQ(messages.value(0), "Save changes to Tran1?");
    EXPECT_EQ(frame->activeTranscriptFrame(), f); // still open

    pressOnMessage("Yes");
    chooseFile(tempPath("new.tvi"));
    run("ID_FILE_CLOSE");
    EXPECT_TRUE(frame->transcriptFrames().isEmpty());
    EXPECT_EQ(fileBytes(tempPath("new.tvi")),
              QByteArray("\xEF\xBB\xBF$ Child, Examiner Adult\n+ Name: Ann\n- 0:00\n"));
    EXPECT_EQ(app->recentFiles().value(0), tempPath("new.tvi"));
}

TEST_F(ShellTest, OpenSaveAsAndAutomaticBackups) {
    chooseFile(dataFile("park.tvi"));
    run("ID_FILE_OPEN");
    CTAVIFrame* f = frame->activeTranscriptFrame();
    ASSERT_NE(f, nullptr);
    EXPECT_EQ(f->windowTitle(), "park.tvi[*]");
    EXPECT_FALSE(f->doc().isModified());

    chooseFile(tempPath("copy.tvi"));
    run("ID_FILE_SAVE_AS");
    EXPECT_EQ(fileBytes(tempPath("copy.tvi")), "\xEF\xBB\xBF" + fileBytes(dataFile("park.tvi")));
    EXPECT_EQ(f->doc().title(), "copy.tvi");

    // Fifty edits are allowed; the fifty-first writes the backup copy.
    app->settings().backupInterval = 50;
    f->view().moveCursor(QTextCursor::End);
    QTest::keyClicks(&f->view(), QString(50, QLatin1Char('a')));
    const QString backup = f->doc().backupPath();
    EXPECT_TRUE(backup.endsWith("/copy.$VI"));
    EXPECT_FALSE(QFile::exists(backup));
    QTest::keyClicks(&f->view(), QStringLiteral("b"));
    EXPECT_TRUE(QFile::exists(backup));
    EXPECT_TRUE(fileBytes(backup).endsWith(QByteArray(50, 'a') + "b"));
    EXPECT_TRUE(f->doc().isModified());
}

TEST_F(ShellTest, LinkAndUnlinkTwoTranscripts) {
    CTAVIFrame* park = frame->openTranscript(dataFile("park.tvi"));
    CTAVIFrame* broken = frame->openTranscript(dataFile("broken.tvi"));
    ASSERT_TRUE(park && broken);
    EXPECT_FALSE(action("ID_LINK_UNLINK")->isEnabled());
    whenModal([](QWidget* w) { qobject_cast<QDialog*>(w)->accept(); }); // the only other one
    run("ID_LINK_LINK");
    EXPECT_EQ(broken->windowTitle(), "broken.tvi LINKED WITH park.tvi[*]");
    EXPECT_EQ(park->windowTitle(), "park.tvi LINKED WITH broken.tvi[*]");

    pressOnMessage("Yes");
    pressOnMessage("OK");
    run("ID_LINK_UNLINK");
    EXPECT_EQ(messages, QStringList({"Unlink broken.tvi and park.tvi?",
                                     "broken.tvi and park.tvi are no longer linked."}));
    EXPECT_EQ(park->windowTitle(), "park.tvi[*]");
}

TEST_F(ShellTest, ProblemLinesAreMarkedAfterAPauseInTyping) {
    if (!checkerFindsProblems())
        GTEST_SKIP() << "the checker reports nothing yet";
    CTAVIFrame* f = frame->openTranscript(dataFile("park.tvi"));
    ASSERT_NE(f, nullptr);
    EXPECT_TRUE(f->doc().problems().empty());
    f->view().goToLine(8);
    f->view().moveCursor(QTextCursor::EndOfBlock);
    QTest::keyClick(&f->view(), Qt::Key_Backspace); // the terminator
    EXPECT_TRUE(f->doc().problems().empty());       // not on every key
    QTest::qWait(CTAVIDoc::kCheckDelayMs + 300);
    ASSERT_FALSE(f->doc().problems().empty());
    EXPECT_EQ(f->doc().problems().front().line, 8);
    EXPECT_FALSE(f->doc().problemText(8).isEmpty());
    EXPECT_EQ(f->view().extraSelections().size(), f->doc().problems().size());
}

TEST_F(ShellTest, HelpShowsTheReadmeAndWindowMenuClosesReportsOnly) {
    run("ID_HELP_README");
    QMdiSubWindow* help = frame->mdiArea().currentSubWindow();
    ASSERT_NE(help, nullptr);
    EXPECT_EQ(help->objectName(), "CHelpFrame");
    // Help Topics opens the documentation index, the way into every document.
    run("ID_HELP_FINDER");
    QMdiSubWindow* topics = frame->mdiArea().currentSubWindow();
    ASSERT_NE(topics, nullptr);
    ASSERT_NE(topics, help);
    EXPECT_EQ(topics->widget()->windowTitle(), "index.md");
    ASSERT_NE(frame->openTranscript(dataFile("park.tvi")), nullptr);
    run("ID_WINDOW_CLOSE_ALL");
    QApplication::processEvents();
    EXPECT_TRUE(frame->mdiArea().subWindowList().isEmpty());
}

} // namespace
} // namespace tavi::app::test

namespace tavi::app::test {
namespace {

TEST_F(ShellTest, InsertSymbolFindReplaceAndGoToEntryEditTheTranscript) {
    CTAVIFrame* f = frame->openTranscript(dataFile("park.tvi"));
    ASSERT_NE(f, nullptr);
    f->view().goToLine(9);
    EXPECT_EQ(f->view().textCursor().blockNumber(), 8);
    f->view().moveCursor(QTextCursor::EndOfBlock);
    whenModal([](QWidget* w) {
        auto* dialog = qobject_cast<CInsertListDialog*>(w);
        ASSERT_NE(dialog, nullptr);
        EXPECT_EQ(dialog->windowTitle(), "Insert Symbol");
        const auto found = dialog->list().findItems("~", Qt::MatchStartsWith);
        ASSERT_FALSE(found.isEmpty());
        dialog->list().setCurrentItem(found.front());
        dialog->accept();
    });
    run("ID_EDIT_INSERT_SYMBOL");
    EXPECT_EQ(f->doc().document()->findBlockByNumber(8).text(), "E Did you go with your dad?~");

    run("ID_EDIT_FIND_REPLACE");
    auto* find = frame->findChild<CFindReplaceDialog*>();
    ASSERT_NE(find, nullptr);
    find->findChild<QLineEdit*>("findText")->setText("swing");
    find->findChild<QLineEdit*>("replaceText")->setText("slide");
    EXPECT_EQ(find->replaceAll(), 1);
    EXPECT_TRUE(f->doc().document()->toPlainText().contains("on the slide."));
    f->view().undo();
    EXPECT_TRUE(f->doc().document()->toPlainText().contains("on the swing."));
    find->close();
}

} // namespace
} // namespace tavi::app::test
