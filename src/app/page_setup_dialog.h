// "Page Setup": the paper, its orientation and (for reports) the margins, in
// the program's own dialog. Used for the page of PDF files and for printers
// that the system's page setup cannot handle.
#pragma once

#include <QDialog>
#include <QPageLayout>

class QComboBox;
class QDoubleSpinBox;
class QRadioButton;

namespace tavi::app {

class CPageSetupDialog final : public QDialog {
    Q_OBJECT
public:
    // `withMargins` false hides the margins (a printer keeps its own).
    CPageSetupDialog(const QPageLayout& layout, bool withMargins, QWidget* parent = nullptr);

    // The page as chosen, the same margin on all four sides.
    QPageLayout layout() const;

private:
    QComboBox* paper_;
    QRadioButton* portrait_;
    QRadioButton* landscape_;
    QDoubleSpinBox* margin_ = nullptr;
    QPageLayout initial_;
};

} // namespace tavi::app
