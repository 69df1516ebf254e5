// The folder and its transcripts, each with a check box.
#include "app/transcript_picker.h"

#include <QDir>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace tavi::app {

CTranscriptPicker::CTranscriptPicker(const QString& folder, QWidget* parent)
    : QWidget(parent), folder_(new QLineEdit(this)), list_(new QListWidget(this)) {
    folder_->setObjectName(QStringLiteral("folder"));
    list_->setObjectName(QStringLiteral("transcripts"));
    auto* browse = new QPushButton(QStringLiteral("&Browse..."), this);
    auto* all = new QPushButton(QStringLiteral("Select &All"), this);
    auto* none = new QPushButton(QStringLiteral("C&lear All"), this);
    auto* top = new QHBoxLayout;
    top->addWidget(new QLabel(QStringLiteral("Transcript folder:"), this));
    top->addWidget(folder_, 1);
    top->addWidget(browse);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(all);
    buttons->addWidget(none);
    buttons->addStretch(1);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(top);
    layout->addWidget(list_, 1);
    layout->addLayout(buttons);
    connect(browse, &QPushButton::clicked, this, [this] {
        const QString chosen = QFileDialog::getExistingDirectory(
            this, QStringLiteral("Transcript Folder"), folder_->text());
        if (!chosen.isEmpty())
            setFolder(chosen);
    });
    connect(folder_, &QLineEdit::editingFinished, this, [this] {
        if (folder_->isModified())
            setFolder(folder_->text());
    });
    connect(all, &QPushButton::clicked, this, [this] { checkAll(true); });
    connect(none, &QPushButton::clicked, this, [this] { checkAll(false); });
    setFolder(folder);
}

void CTranscriptPicker::setFolder(const QString& folder) {
    folder_->setText(folder);
    folder_->setModified(false);
    list_->clear();
    if (folder.isEmpty())
        return;
    const QStringList names = QDir(folder).entryList({QStringLiteral("*.tvi")}, QDir::Files,
                                                     QDir::Name | QDir::IgnoreCase);
    for (const QString& name : names) {
        auto* item = new QListWidgetItem(name, list_);
        item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
        item->setCheckState(Qt::Checked);
    }
}

QString CTranscriptPicker::folder() const {
    return folder_->text();
}

std::vector<std::filesystem::path> CTranscriptPicker::files() const {
    std::vector<std::filesystem::path> chosen;
    const QDir dir(folder_->text());
    for (int i = 0; i < list_->count(); ++i)
        if (list_->item(i)->checkState() == Qt::Checked)
            chosen.emplace_back(dir.filePath(list_->item(i)->text()).toStdString());
    return chosen;
}

void CTranscriptPicker::checkAll(bool on) {
    for (int i = 0; i < list_->count(); ++i)
        list_->item(i)->setCheckState(on ? Qt::Checked : Qt::Unchecked);
}

} // namespace tavi::app
