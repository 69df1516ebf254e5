// The problem list of a checked transcript: one row per problem in line
// order ("E<code> on entry <line>: ..."), the summary line under it, and a
// double-click that moves the transcript's caret to the problem's line. Before
// an analysis it also asks whether to go on despite the errors.
#pragma once

#include <QDialog>
#include <QPointer>
#include <vector>

#include "transcript/err.h"

class QLabel;
class QListWidget;

namespace tavi::app {

class CTAVIView;

class CErrorListDialog final : public QDialog {
    Q_OBJECT
public:
    // `question` empty: a plain list with "Close"; otherwise the question is
    // shown above the list with "Continue" (accept) and "Cancel" (reject).
    CErrorListDialog(CTAVIView& view, const std::vector<err>& problems,
                     const QString& question = QString(), QWidget* parent = nullptr);

    QListWidget& list() { return *list_; }
    void goToRow(int row);

private:
    QPointer<CTAVIView> view_;
    std::vector<err> problems_;
    QListWidget* list_;
};

} // namespace tavi::app
