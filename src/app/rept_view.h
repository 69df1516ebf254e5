// The report view: a read-only rich-text view of a finished report.
#pragma once

#include <QTextEdit>

namespace tavi::app {

class CReptDoc;

class CReptView final : public QTextEdit {
    Q_OBJECT
public:
    explicit CReptView(CReptDoc& doc, QWidget* parent = nullptr);
    CReptDoc& doc() { return doc_; }

Q_SIGNALS:
    void contextMenuWanted(QPoint globalPos);

protected:
    void contextMenuEvent(QContextMenuEvent* e) override;

private:
    CReptDoc& doc_;
};

} // namespace tavi::app
