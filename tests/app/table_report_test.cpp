// The Analyze menu's lists and tables through the real menus and dialogs:
// the utterance-list dialog chooses the lists shown, the order dialog the
// order of a table.
#include <QListWidget>
#include <QRadioButton>

#include "app/rept_frame.h"
#include "app/rept_view.h"
#include "app_fixture.h"

namespace tavi::app::test {
namespace {

class TableReportTest : public AppTest {
protected:
    // Accepts the speaker choice, then answers the report's own dialog.
    QString reportText(const char* id, std::function<void(QWidget*)> answer) {
        if (!frame->activeTranscriptFrame() && !frame->openTranscript(dataFile("park.tvi")))
            return {};
        whenModal([](QWidget* w) { qobject_cast<QDialog*>(w)->accept(); });
        whenModal(std::move(answer));
        run(id);
        CReptFrame* report = frame->activeReportFrame();
        return report ? report->view().toPlainText() : QString();
    }
};

TEST_F(TableReportTest, UtteranceListDialogChoosesTheListsShown) {
    const QString text = reportText("ID_ANAL_SUL", [](QWidget* w) {
        auto* lists = w->findChild<QListWidget*>(QStringLiteral("lists"));
        ASSERT_NE(lists, nullptr);
        ASSERT_EQ(lists->count(), 21);
        for (int k = 0; k < lists->count(); ++k)
            lists->item(k)->setCheckState(
                lists->item(k)->text() == QStringLiteral("PSTMT") ? Qt::Checked : Qt::Unchecked);
        qobject_cast<QDialog*>(w)->accept();
    });
    EXPECT_TRUE(text.startsWith(QStringLiteral("Standard Utterance Lists"))) << text.toStdString();
    EXPECT_TRUE(text.contains(QStringLiteral("Statements ("))) << text.toStdString();
    EXPECT_FALSE(text.contains(QStringLiteral("Questions (")));
}

TEST_F(TableReportTest, OrderDialogSortsTheWordRootTable) {
    const QString text = reportText("ID_ANAL_WR", [](QWidget* w) {
        auto* alpha = w->findChild<QRadioButton*>(QStringLiteral("alpha"));
        ASSERT_NE(alpha, nullptr);
        alpha->setChecked(true);
        qobject_cast<QDialog*>(w)->accept();
    });
    EXPECT_TRUE(text.contains(QStringLiteral("Word Root Table"))) << text.toStdString();
    // Alphabetical: "cake" (said once) comes before "my" (said twice).
    const qsizetype table = text.indexOf(QStringLiteral("Count"));
    ASSERT_GE(table, 0);
    const qsizetype cake = text.indexOf(QStringLiteral("cake"), table);
    const qsizetype my = text.indexOf(QStringLiteral("my"), table);
    EXPECT_GE(cake, 0);
    EXPECT_LT(cake, my);
}

} // namespace
} // namespace tavi::app::test
