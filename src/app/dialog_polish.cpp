// Dialog widths and mnemonics.
#include "app/dialog_polish.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QEvent>
#include <QFileDialog>
#include <QFontMetrics>
#include <QLabel>
#include <QMessageBox>
#include <QScreen>

namespace tavi::app {
namespace {

// The window manager's title bar: the icon on the left, three buttons on the right.
constexpr int kTitleChrome = 120;

// Buttons that Enter and Escape already press need no letter: OK, Cancel, Close.
bool pressedByEnterOrEscape(const QAbstractButton& button) {
    const auto* box = qobject_cast<const QDialogButtonBox*>(button.parentWidget());
    if (!box)
        return false;
    const QDialogButtonBox::ButtonRole role =
        box->buttonRole(const_cast<QAbstractButton*>(&button));
    return role == QDialogButtonBox::AcceptRole || role == QDialogButtonBox::RejectRole;
}

} // namespace

int DialogPolish::titleWidth(const QWidget& window) {
    const QFontMetrics metrics(QApplication::font("QMdiSubWindowTitleBar"));
    return metrics.horizontalAdvance(window.windowTitle()) + kTitleChrome;
}

QChar DialogPolish::mnemonicOf(const QString& text) {
    for (qsizetype i = 0; i + 1 < text.size(); ++i)
        if (text[i] == QLatin1Char('&')) {
            if (text[i + 1] != QLatin1Char('&'))
                return text[i + 1].toLower();
            ++i;
        }
    return {};
}

QString DialogPolish::withMnemonic(const QString& text, QString& used) {
    if (!mnemonicOf(text).isNull())
        return text;
    auto freeAt = [&](qsizetype i) {
        const QChar c = text[i].toLower();
        return text[i].isLetterOrNumber() && c.unicode() < 128 && !used.contains(c) &&
               (i == 0 || text[i - 1] != QLatin1Char('&'));
    };
    qsizetype chosen = -1;
    for (qsizetype i = 0; i < text.size() && chosen < 0; ++i)
        if (freeAt(i) && (i == 0 || !text[i - 1].isLetterOrNumber()))
            chosen = i;
    for (qsizetype i = 0; i < text.size() && chosen < 0; ++i)
        if (freeAt(i))
            chosen = i;
    // No letter free: the first letter of a word is shared; Qt moves the
    // focus between fields that share a mnemonic.
    for (qsizetype i = 0; i < text.size() && chosen < 0; ++i)
        if (text[i].isLetterOrNumber() && (i == 0 || !text[i - 1].isLetterOrNumber()))
            chosen = i;
    if (chosen < 0)
        return text;
    used += text[chosen].toLower();
    QString result = text;
    result.insert(chosen, QLatin1Char('&'));
    return result;
}

void DialogPolish::polish(QWidget& window) {
    const int needed = titleWidth(window);
    if (window.width() < needed) {
        int most = needed;
        if (const QScreen* screen = window.screen())
            most = std::min(needed, screen->availableGeometry().width());
        window.resize(most, window.height());
    }
    const QList<QAbstractButton*> buttons = window.findChildren<QAbstractButton*>();
    QList<QLabel*> labels;
    for (QLabel* label : window.findChildren<QLabel*>())
        if (label->buddy())
            labels << label;
    QString used;
    for (QAbstractButton* b : buttons)
        if (const QChar c = mnemonicOf(b->text()); !c.isNull())
            used += c;
    for (QLabel* l : labels)
        if (const QChar c = mnemonicOf(l->text()); !c.isNull())
            used += c;
    for (QLabel* l : labels)
        if (!l->text().isEmpty() && !l->text().contains(QLatin1Char('<')))
            l->setText(withMnemonic(l->text(), used));
    for (QAbstractButton* b : buttons)
        if (!b->text().isEmpty() && !pressedByEnterOrEscape(*b))
            b->setText(withMnemonic(b->text(), used));
}

bool DialogPolish::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Show)
        if (auto* dialog = qobject_cast<QDialog*>(watched); dialog && dialog->isWindow() &&
                                                            !qobject_cast<QMessageBox*>(dialog) &&
                                                            !qobject_cast<QFileDialog*>(dialog))
            polish(*dialog);
    return QObject::eventFilter(watched, event);
}

} // namespace tavi::app
