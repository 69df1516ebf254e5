// The dialog "Standard Measures Report Variables": the speaker and one check
// box per line of the report, grouped by its sections.
#pragma once

#include <QDialog>
#include <array>

#include "reports/labels.h"
#include "reports/standard_measures_report.h"

class QCheckBox;
class QRadioButton;

namespace tavi::app {

class CSmrVariablesDialog final : public QDialog {
    Q_OBJECT
public:
    // `speakers`: the labels of the 1st and 2nd speaker (the 2nd may be empty).
    CSmrVariablesDialog(const SmrVariables& variables, int speaker,
                        const std::pair<std::string, std::string>& speakers,
                        const LabelSource& labels, QWidget* parent = nullptr);

    SmrVariables variables() const;
    int speaker() const;
    void setVariables(const SmrVariables& variables);

Q_SIGNALS:
    void helpRequested(); // "&Help": the frame opens the report's document
    // "Save as &Default": the frame saves variables() as the program default.
    void saveDefaultRequested();

private:
    std::array<QCheckBox*, kSmrLineCount> boxes_{};
    QRadioButton* first_;
    QRadioButton* second_;
};

// The text of one report line in the dialog: "# " for analysis-set lines,
// "% " before percentages of a label, the suffix label after it.
QString smrLineText(const SmrLineDef& line, const LabelSource& labels);

} // namespace tavi::app
