// The dialog "Save report as" of a rich-text report (`CSaveReportTypeRTF`):
// the format, or the PDF batch, and "Display report after saving". The
// choices are numbered as `RichTextSaveChoice`.
#pragma once

#include <QDialog>

class QButtonGroup;
class QCheckBox;

namespace tavi::app {

class CSaveReportTypeRTF final : public QDialog {
    Q_OBJECT
public:
    // `batchOpen` shows "Close PDF &Batch" in place of "Begin PDF Batch".
    // `choice` is the one checked at first.
    CSaveReportTypeRTF(int choice, bool displayAfterSaving, bool batchOpen,
                       QWidget* parent = nullptr);
    int choice() const;
    bool displayAfterSaving() const;

private:
    QButtonGroup* choices_;
    QCheckBox* display_;
};

} // namespace tavi::app
