// Message boxes and the progress dialog behind the core's interfaces.
#include "app/qt_prompter.h"

#include <QApplication>
#include <QMessageBox>

namespace tavi::app {
namespace {

QString toQ(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

} // namespace

void QtPrompter::inform(std::string_view text) {
    QMessageBox::information(parent_, QStringLiteral("TAVI"), toQ(text));
}

Answer QtPrompter::ask(std::string_view text) {
    const auto button = QMessageBox::question(
        parent_, QStringLiteral("TAVI"), toQ(text),
        QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, QMessageBox::Yes);
    if (button == QMessageBox::Yes)
        return Answer::Yes;
    return button == QMessageBox::No ? Answer::No : Answer::Cancel;
}

bool QtPrompter::confirm(std::string_view text) {
    return QMessageBox::question(parent_, QStringLiteral("TAVI"), toQ(text),
                                 QMessageBox::Ok | QMessageBox::Cancel,
                                 QMessageBox::Ok) == QMessageBox::Ok;
}

QtProgress::~QtProgress() {
    delete dialog_;
}

void QtProgress::start(int total, std::string_view caption) {
    delete dialog_;
    dialog_ = new QProgressDialog(toQ(caption), cancellable_ ? QStringLiteral("Cancel") : QString(),
                                  0, total, parent_);
    dialog_->setWindowTitle(QStringLiteral("TAVI"));
    dialog_->setWindowModality(Qt::WindowModal);
    dialog_->setMinimumDuration(300);
    QObject::connect(dialog_, &QProgressDialog::canceled, [this] { cancelled_ = true; });
    done_ = 0;
    cancelled_ = false;
}

void QtProgress::step() {
    if (!dialog_)
        return;
    dialog_->setValue(++done_);
    // A Cancel button must be pressable; without one the person's input waits.
    QApplication::processEvents(cancellable_ ? QEventLoop::AllEvents
                                             : QEventLoop::ExcludeUserInputEvents);
}

void QtProgress::finish() {
    delete dialog_;
    dialog_ = nullptr;
}

} // namespace tavi::app
