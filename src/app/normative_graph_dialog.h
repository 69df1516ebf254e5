// Help > Normative Graphs: a graph of one measure, drawn live from the
// transcript's chosen database samples, with a button that saves it as PNG,
// SVG or PDF.
#pragma once

#include <QDialog>

#include "reports/normative_graph.h"

namespace tavi::app {

class NormativeGraphDialog : public QDialog {
    Q_OBJECT

public:
    NormativeGraphDialog(NormativeGraph graph, QWidget* parent);

private:
    void save();

    NormativeGraph graph_;
};

} // namespace tavi::app
