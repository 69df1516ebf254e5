// Find and Replace in the active transcript.
#pragma once

#include <QDialog>
#include <QPointer>
#include <QTextDocument>

class QCheckBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;

namespace tavi::app {

class CFindReplaceDialog final : public QDialog {
    Q_OBJECT
public:
    explicit CFindReplaceDialog(QWidget* parent = nullptr);
    // The transcript searched; its window's name shows in the title.
    void setEditor(QPlainTextEdit* editor, const QString& where = {});

    bool findNext();
    void replaceOne();
    int replaceAll(); // the number of replacements, one undo step

private:
    QTextDocument::FindFlags flags() const;
    void say(const QString& text);

    QPointer<QPlainTextEdit> editor_;
    QLineEdit* find_;
    QLineEdit* replace_;
    QCheckBox* matchCase_;
    QCheckBox* wholeWord_;
    QCheckBox* backwards_;
    QLabel* status_;
};

} // namespace tavi::app
