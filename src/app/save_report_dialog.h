// The dialog "Save report as" of a rich-text report (`CSaveReportTypeRTF`):
// the format, or the PDF batch, and "Display report after saving".
#pragma once

#include <QDialog>

class QButtonGroup;
class QCheckBox;

namespace tavi::app {

enum SaveChoice { SavePdf = 0, SaveRtf = 1, SaveTxt = 2, SavePdfBatch = 3 };

class CSaveReportTypeRTF final : public QDialog {
    Q_OBJECT
public:
    // `batchOpen` shows "Close PDF &Batch" in place of "Begin PDF Batch".
    CSaveReportTypeRTF(int choice, bool displayAfterSaving, bool batchOpen,
                       QWidget* parent = nullptr);
    int choice() const;
    bool displayAfterSaving() const;

private:
    QButtonGroup* choices_;
    QCheckBox* display_;
};

} // namespace tavi::app
