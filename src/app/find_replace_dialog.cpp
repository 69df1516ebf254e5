// Searching and replacing text with the editor's own search.
#include "app/find_replace_dialog.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace tavi::app {

CFindReplaceDialog::CFindReplaceDialog(QWidget* parent)
    : QDialog(parent), find_(new QLineEdit), replace_(new QLineEdit),
      matchCase_(new QCheckBox(QStringLiteral("Match &case"))),
      wholeWord_(new QCheckBox(QStringLiteral("Match &whole word only"))),
      backwards_(new QCheckBox(QStringLiteral("Search &up"))), status_(new QLabel) {
    setWindowTitle(QStringLiteral("Find and Replace"));
    setObjectName(QStringLiteral("CFindReplaceDialog"));
    find_->setObjectName(QStringLiteral("findText"));
    replace_->setObjectName(QStringLiteral("replaceText"));
    auto* form = new QFormLayout;
    form->addRow(QStringLiteral("Fi&nd what:"), find_);
    form->addRow(QStringLiteral("Re&place with:"), replace_);
    auto* next = new QPushButton(QStringLiteral("&Find Next"));
    auto* one = new QPushButton(QStringLiteral("&Replace"));
    auto* all = new QPushButton(QStringLiteral("Replace &All"));
    auto* close = new QPushButton(QStringLiteral("Close"));
    next->setObjectName(QStringLiteral("findNext"));
    one->setObjectName(QStringLiteral("replaceOne"));
    all->setObjectName(QStringLiteral("replaceAll"));
    next->setDefault(true);
    connect(next, &QPushButton::clicked, this, &CFindReplaceDialog::findNext);
    connect(one, &QPushButton::clicked, this, &CFindReplaceDialog::replaceOne);
    connect(all, &QPushButton::clicked, this, &CFindReplaceDialog::replaceAll);
    connect(close, &QPushButton::clicked, this, &QDialog::close);
    auto* buttons = new QVBoxLayout;
    for (QPushButton* b : {next, one, all, close})
        buttons->addWidget(b);
    buttons->addStretch();
    auto* left = new QVBoxLayout;
    left->addLayout(form);
    left->addWidget(matchCase_);
    left->addWidget(wholeWord_);
    left->addWidget(backwards_);
    left->addWidget(status_);
    auto* layout = new QHBoxLayout(this);
    layout->addLayout(left);
    layout->addLayout(buttons);
}

void CFindReplaceDialog::setEditor(QPlainTextEdit* editor, const QString& where) {
    editor_ = editor;
    QString name = where;
    name.remove(QStringLiteral("[*]"));
    setWindowTitle(editor && !name.isEmpty() ? QStringLiteral("Find and Replace - ") + name
                                             : QStringLiteral("Find and Replace"));
}

QTextDocument::FindFlags CFindReplaceDialog::flags() const {
    QTextDocument::FindFlags f;
    if (matchCase_->isChecked())
        f |= QTextDocument::FindCaseSensitively;
    if (wholeWord_->isChecked())
        f |= QTextDocument::FindWholeWords;
    if (backwards_->isChecked())
        f |= QTextDocument::FindBackward;
    return f;
}

void CFindReplaceDialog::say(const QString& text) {
    status_->setText(text);
}

bool CFindReplaceDialog::findNext() {
    if (!editor_ || find_->text().isEmpty())
        return false;
    if (editor_->find(find_->text(), flags())) {
        say(QString());
        return true;
    }
    say(QStringLiteral("Cannot find \"") + find_->text() + QLatin1Char('"'));
    return false;
}

void CFindReplaceDialog::replaceOne() {
    if (!editor_)
        return;
    QTextCursor cursor = editor_->textCursor();
    const Qt::CaseSensitivity cs =
        matchCase_->isChecked() ? Qt::CaseSensitive : Qt::CaseInsensitive;
    if (cursor.hasSelection() && cursor.selectedText().compare(find_->text(), cs) == 0)
        cursor.insertText(replace_->text());
    findNext();
}

int CFindReplaceDialog::replaceAll() {
    if (!editor_ || find_->text().isEmpty())
        return 0;
    QTextDocument* doc = editor_->document();
    QTextDocument::FindFlags f = flags() & ~QTextDocument::FindBackward;
    QTextCursor edit(doc);
    edit.beginEditBlock();
    int count = 0;
    QTextCursor found = doc->find(find_->text(), 0, f);
    while (!found.isNull()) {
        found.insertText(replace_->text());
        ++count;
        found = doc->find(find_->text(), found.position(), f);
    }
    edit.endEditBlock();
    say(QStringLiteral("%1 replaced").arg(count));
    return count;
}

} // namespace tavi::app
