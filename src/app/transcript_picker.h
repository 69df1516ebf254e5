// Choosing transcripts from a folder: the folder (typed or browsed), its
// transcripts as a list with a check box each, all checked at first. The
// Tools dialogs that work over many transcripts share it.
#pragma once

#include <QWidget>
#include <filesystem>
#include <vector>

class QLineEdit;
class QListWidget;

namespace tavi::app {

class CTranscriptPicker final : public QWidget {
    Q_OBJECT
public:
    explicit CTranscriptPicker(const QString& folder, QWidget* parent = nullptr);

    // Lists the transcripts ("*.tvi", any case) of the folder, sorted, all checked.
    void setFolder(const QString& folder);
    QString folder() const;
    // The checked transcripts, in list order.
    std::vector<std::filesystem::path> files() const;
    // Checks or clears every transcript.
    void checkAll(bool on);

private:
    QLineEdit* folder_;
    QListWidget* list_;
};

} // namespace tavi::app
