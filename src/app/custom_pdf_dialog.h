// The dialog of "Create Customized PDF Report": which reports of the table
// the PDF holds, in table order, each a check box.
#pragma once

#include <QDialog>
#include <string>
#include <vector>

#include "reports/report_registry.h"

class QListWidget;

namespace tavi::app {

class CCustomPdfDialog final : public QDialog {
    Q_OBJECT
public:
    // `choices` are the reports offered; those named in `checked` start checked.
    CCustomPdfDialog(const std::vector<const ReportDefinition*>& choices,
                     const std::vector<std::string>& checked, QWidget* parent = nullptr);
    // The names of the checked reports, in table order.
    std::vector<std::string> kinds() const;
    QListWidget& list() { return *list_; }

private:
    std::vector<const ReportDefinition*> choices_;
    QListWidget* list_;
};

} // namespace tavi::app
