// What every dialog of the program gets as it is shown, as desktop
// environments do for their own programs: a width that leaves its whole
// title readable, and a keyboard mnemonic (an underlined letter, Alt+letter)
// on each button and labelled field that has none, chosen from the letters
// that the dialog does not use yet.
#pragma once

#include <QObject>
#include <QString>

class QWidget;

namespace tavi::app {

class DialogPolish final : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    // The width a window needs for its title: the text in the title font and
    // room for the window manager's icon and buttons.
    static int titleWidth(const QWidget& window);
    // Widens the window to its title and gives mnemonics to its buttons and
    // labelled fields.
    static void polish(QWidget& window);
    // `text` with a mnemonic on the first letter (preferring the start of a
    // word) not in `used`, which gets that letter; with none free, on the
    // first word's first letter. Unchanged when it has one already or has
    // no letter.
    static QString withMnemonic(const QString& text, QString& used);
    // The mnemonic letter of a text (lower case), or a null character.
    static QChar mnemonicOf(const QString& text);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace tavi::app
