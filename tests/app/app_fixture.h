// The desktop program under test: a QApplication on the offscreen platform,
// the application state with a temporary user data folder, its main frame,
// and helpers that answer modal dialogs the way a person would.
#pragma once

#include <QAction>
#include <QApplication>
#include <QPointer>
#include <QTemporaryDir>
#include <QTimer>
#include <deque>
#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <ostream>

#include "app/main_frame.h"
#include "app/tavi_app.h"

// Readable QStrings in test failures.
inline void PrintTo(const QString& s, std::ostream* os) {
    *os << '"' << s.toStdString() << '"';
}

namespace tavi::app::test {

// The QApplication all tests share.
QApplication& testApplication();

class AppTest : public ::testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;

    // Triggers a main-menu command by identifier; fails when it is disabled.
    void run(const char* id);
    QAction* action(const char* id) { return frame->action(QString::fromLatin1(id)); }
    // Queues `answer` to act on the next modal dialog (message box, file
    // dialog, any QDialog) that opens.
    void whenModal(std::function<void(QWidget*)> answer);
    // Queues an answer that presses the message box button with this text,
    // and records the box's text in `messages`.
    void pressOnMessage(const QString& buttonText);
    // Answers the next file dialog with this path.
    void chooseFile(const QString& path);
    // Runs pending answers and events until no answers are queued.
    void settle();

    QString dataFile(const char* name) const;
    // False while the checker finds nothing wrong with a broken transcript.
    bool checkerFindsProblems() const;
    QString tempPath(const char* name) const { return temp->filePath(QString::fromLatin1(name)); }

    std::unique_ptr<QTemporaryDir> temp;
    std::unique_ptr<CTAVIApp> app;
    std::unique_ptr<CMainFrame> frame;
    QStringList messages;

private:
    void answerNext();
    std::deque<std::function<void(QWidget*)>> answers_;
    QList<QPointer<QWidget>> answered_;
    QTimer answerTimer_;
};

} // namespace tavi::app::test
