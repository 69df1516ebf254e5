// The dialogs "Save report as": of a rich-text report (`CSaveReportTypeRTF`,
// choices numbered as `RichTextSaveChoice`) and of a grid report
// (`CSaveReportType`, numbered as `GridSaveChoice`): the format, or the PDF
// batch, and "Display report after saving".
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

// The grid reports' dialog: PDF, CSV, TSV, tab-delimited TXT or the batch.
class CSaveReportType final : public QDialog {
    Q_OBJECT
public:
    CSaveReportType(int choice, bool displayAfterSaving, bool batchOpen, QWidget* parent = nullptr);
    int choice() const;
    bool displayAfterSaving() const;

private:
    QButtonGroup* choices_;
    QCheckBox* display_;
};

} // namespace tavi::app
