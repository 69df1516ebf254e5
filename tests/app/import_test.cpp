// File > Import > CHAT file: each chosen CHAT file opens as an unsaved
// transcript named after it, and one message says per file what was dropped
// or why it was not imported.
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>

#include "app/tavi_doc.h"
#include "app/tavi_frame.h"
#include "app_fixture.h"

namespace tavi::app::test {
namespace {

constexpr const char* kStory = "@UTF8\n@Begin\n@Languages:\teng\n"
                               "@Participants:\tCHI Target_Child, INV Investigator\n"
                               "@ID:\teng|test|CHI|5;03.10|female|TD||Target_Child|||\n"
                               "@ID:\teng|test|INV|||||Investigator|||\n"
                               "*CHI:\tthe dog runs .\n"
                               "%gra:\t1|2|DET 2|3|SUBJ 3|0|ROOT 4|3|PUNCT\n"
                               "*INV:\tand then ?\n"
                               "*CHI:\the goes home .\n"
                               "@End\n";
constexpr const char* kNoUtterances = "@UTF8\n@Begin\n@Languages:\teng\n"
                                      "@Participants:\tCHI Target_Child\n@End\n";

void writeFile(const QString& path, const char* text) {
    QFile f(path);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write(text);
}

using ImportTest = AppTest;

TEST_F(ImportTest, ChatFilesOpenAsUnsavedTranscriptsNamedAfterThem) {
    writeFile(tempPath("story.cha"), kStory);
    writeFile(tempPath("empty.cha"), kNoUtterances);
    const QString folder = temp->path();
    whenModal([folder](QWidget* w) {
        auto* dialog = qobject_cast<QFileDialog*>(w);
        ASSERT_NE(dialog, nullptr);
        EXPECT_EQ(dialog->fileMode(), QFileDialog::ExistingFiles);
        dialog->setDirectory(folder);
        dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))
            ->setText(QStringLiteral("\"story.cha\" \"empty.cha\""));
        static_cast<QDialog*>(dialog)->accept();
    });
    pressOnMessage("OK");
    run("ID_FILE_IMPORT_CHAT");
    settle();

    ASSERT_EQ(frame->transcriptFrames().size(), 1);
    CTAVIFrame* imported = frame->transcriptFrames().front();
    EXPECT_EQ(imported->doc().title(), "story.tvi");
    EXPECT_TRUE(imported->doc().path().isEmpty());
    EXPECT_TRUE(imported->doc().isModified());
    const QString text = imported->doc().document()->toPlainText();
    EXPECT_TRUE(text.contains("\nC the dog run/3s.\nI and then?\n")) << text.toStdString();
    EXPECT_TRUE(imported->windowTitle().startsWith("story.tvi"));

    ASSERT_EQ(messages.size(), 1);
    const QStringList lines = messages[0].split('\n');
    ASSERT_EQ(lines.size(), 2) << messages[0].toStdString();
    EXPECT_TRUE(lines[0].startsWith("story.cha: dropped 1 ")) << lines[0].toStdString();
    EXPECT_TRUE(lines[0].contains("%gra")) << lines[0].toStdString();
    EXPECT_TRUE(lines[1].startsWith("empty.cha: not imported: ")) << lines[1].toStdString();

    // Saving asks for the file under the CHAT file's name.
    whenModal([this](QWidget* w) {
        auto* dialog = qobject_cast<QFileDialog*>(w);
        ASSERT_NE(dialog, nullptr);
        EXPECT_TRUE(dialog->selectedFiles().value(0).endsWith("/story.tvi"))
            << dialog->selectedFiles().value(0).toStdString();
        dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))
            ->setText(tempPath("story.tvi"));
        static_cast<QDialog*>(dialog)->accept();
    });
    run("ID_FILE_SAVE");
    EXPECT_EQ(imported->doc().path(), tempPath("story.tvi"));
    EXPECT_FALSE(imported->doc().isModified());
}

} // namespace
} // namespace tavi::app::test
