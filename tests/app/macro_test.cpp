// The desktop program's macro-analysis commands: Insert SI Codes writes
// codes for review, Insert Template writes the lines the dialog scores, and
// each template's report can be chosen only once the transcript holds its
// lines.
#include <QComboBox>
#include <QDialog>
#include <QTextDocument>

#include "app/tavi_doc.h"
#include "app/tavi_frame.h"
#include "app_fixture.h"

namespace tavi::app::test {
namespace {

class MacroTest : public AppTest {
protected:
    QString text() { return frame->activeTranscriptFrame()->doc().document()->toPlainText(); }
    bool enabled(const char* id) {
        frame->updateCommands();
        return action(id)->isEnabled();
    }
};

TEST_F(MacroTest, InsertCodesAndTemplateLinesAndEnableTheirReports) {
    ASSERT_NE(frame->newTranscript(QStringLiteral("$ Child, Examiner\n"
                                                  "C the dog ran away.\n"
                                                  "E what happened?\n"
                                                  "C he was sad because he was lost.\n")),
              nullptr);
    EXPECT_FALSE(enabled("ID_ANAL_NSS"));
    EXPECT_FALSE(enabled("ID_ANAL_SI"));

    pressOnMessage("OK");
    run("ID_EDIT_INSERT_SI");
    EXPECT_TRUE(text().contains("C the dog ran away [SI-1?].")) << text().toStdString();
    EXPECT_TRUE(text().contains("C he was sad because he was lost [SI-2?]."))
        << text().toStdString();
    EXPECT_TRUE(text().contains("E what happened?\n")) << text().toStdString();
    EXPECT_TRUE(enabled("ID_ANAL_SI"));

    // The dialog: the first component scored 5 (its first score), the rest left open.
    whenModal([](QWidget* w) {
        auto* dialog = qobject_cast<QDialog*>(w);
        ASSERT_NE(dialog, nullptr);
        const QList<QComboBox*> boxes = dialog->findChildren<QComboBox*>();
        ASSERT_EQ(boxes.size(), 7);
        boxes.front()->setCurrentIndex(1);
        dialog->accept();
    });
    run("ID_TEMPLATE_NSS");
    EXPECT_TRUE(text().startsWith("$ Child, Examiner\n+ NSS Introduction: 5\n"
                                  "+ NSS Character Development: ?\n"))
        << text().toStdString();
    EXPECT_TRUE(text().contains("+ NSS Conclusion: ?\nC the dog ran away")) << text().toStdString();
    EXPECT_TRUE(enabled("ID_ANAL_NSS"));
    EXPECT_FALSE(enabled("ID_ANAL_ESS"));
    EXPECT_FALSE(enabled("ID_DB_NSS")); // no database samples selected
}

} // namespace
} // namespace tavi::app::test
