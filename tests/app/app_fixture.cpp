// The offscreen application and the dialog-answering helpers of the tests.
#include "app_fixture.h"

#include <QAbstractButton>
#include <QDialog>
#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QMessageBox>
#include <QProgressDialog>
#include <QTextDocument>
#include <QTimer>

#include "app/core_bridge.h"
#include "app/tavi_doc.h"
#include "app/tavi_frame.h"

namespace tavi::app::test {

QApplication& testApplication() {
    static int argc = 1;
    static char name[] = "tavi_app_tests";
    static char* argv[] = {name, nullptr};
    static QApplication* instance = [] {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        return new QApplication(argc, argv);
    }();
    return *instance;
}

void AppTest::SetUp() {
    testApplication();
    temp = std::make_unique<QTemporaryDir>();
    ASSERT_TRUE(temp->isValid());
    qputenv("TAVI_DATA_USER", temp->filePath(QStringLiteral("user")).toUtf8());
    qputenv("XDG_DOCUMENTS_DIR", temp->path().toUtf8());
    QDir(temp->path()).mkpath(QStringLiteral("My TAVI Data"));
    answerTimer_.setInterval(10);
    QObject::connect(&answerTimer_, &QTimer::timeout, [this] { answerNext(); });
    app = std::make_unique<CTAVIApp>();
    frame = std::make_unique<CMainFrame>(*app);
    frame->show();
}

void AppTest::TearDown() {
    EXPECT_TRUE(answers_.empty()) << answers_.size() << " dialog answers were not used";
    answers_.clear();
    answerTimer_.stop();
    for (QWidget* w : QApplication::topLevelWidgets())
        if (w != frame.get() && w->isVisible() && qobject_cast<QDialog*>(w))
            w->close();
    if (frame) {
        for (QMdiSubWindow* w : frame->mdiArea().subWindowList())
            if (auto* transcript = qobject_cast<CTAVIFrame*>(w))
                transcript->doc().document()->setModified(false);
        frame->mdiArea().closeAllSubWindows();
    }
    frame.reset();
    app.reset();
    QApplication::processEvents();
}

void AppTest::run(const char* id) {
    QAction* a = action(id);
    ASSERT_NE(a, nullptr) << id;
    frame->updateCommands();
    ASSERT_TRUE(a->isEnabled()) << id << " is disabled";
    a->trigger();
    settle();
}

void AppTest::whenModal(std::function<void(QWidget*)> answer) {
    answers_.push_back(std::move(answer));
    if (!answerTimer_.isActive())
        answerTimer_.start();
}

// Answers one dialog per turn: the next answer waits for a modal dialog other
// than those answered that are still open.
void AppTest::answerNext() {
    QWidget* modal = QApplication::activeModalWidget();
    if (answers_.empty()) {
        answerTimer_.stop();
        return;
    }
    if (!modal)
        return;
    // A dialog already answered that is still open (one whose work shows
    // further message boxes) is not answered twice.
    for (const QPointer<QWidget>& done : answered_)
        if (done == modal && modal->isVisible())
            return;
    // A progress dialog is nobody's question: the answer waits for the next dialog.
    if (qobject_cast<QProgressDialog*>(modal))
        return;
    answered_.removeAll(nullptr);
    answered_ << modal;
    auto answer = std::move(answers_.front());
    answers_.pop_front();
    // Answered from a timer of its own, so that dialogs the answer opens in
    // turn can be answered by this polling timer.
    QPointer<QWidget> target = modal;
    QTimer::singleShot(0, [answer = std::move(answer), target] {
        if (target)
            answer(target);
    });
}

void AppTest::pressOnMessage(const QString& buttonText) {
    whenModal([this, buttonText](QWidget* w) {
        auto* box = qobject_cast<QMessageBox*>(w);
        if (!box) {
            ADD_FAILURE() << "expected a message box, got " << w->metaObject()->className();
            w->close();
            return;
        }
        messages << box->text();
        for (QAbstractButton* b : box->buttons())
            if (b->text().remove(QLatin1Char('&')) == buttonText) {
                b->click();
                return;
            }
        ADD_FAILURE() << "no button " << buttonText.toStdString();
        box->reject();
    });
}

void AppTest::chooseFile(const QString& path) {
    whenModal([path](QWidget* w) {
        auto* dialog = qobject_cast<QFileDialog*>(w);
        if (!dialog) {
            ADD_FAILURE() << "expected a file dialog, got " << w->metaObject()->className();
            w->close();
            return;
        }
        dialog->selectFile(path);
        if (auto* name = dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit")))
            name->setText(path);
        static_cast<QDialog*>(dialog)->accept();
    });
}

void AppTest::settle() {
    for (int i = 0; i < 500 && !answers_.empty(); ++i)
        QApplication::processEvents(QEventLoop::AllEvents, 10);
    QApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

bool AppTest::checkerFindsProblems() const {
    CTAVIDoc probe(*app, 0);
    QString error;
    return probe.load(dataFile("broken.tvi"), error) &&
           !checkTranscript(*app, probe.lines()).empty();
}

QString AppTest::dataFile(const char* name) const {
    return QStringLiteral(TAVI_TEST_DATA_DIR "/app/") + QString::fromLatin1(name);
}

} // namespace tavi::app::test
