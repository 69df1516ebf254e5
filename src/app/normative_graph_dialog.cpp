// The window of a normative graph.
#include "app/normative_graph_dialog.h"

#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPixmap>
#include <QPushButton>
#include <QVBoxLayout>

#include "qt/graph_writer.h"

namespace tavi::app {

NormativeGraphDialog::NormativeGraphDialog(NormativeGraph graph, QWidget* parent)
    : QDialog(parent), graph_(std::move(graph)) {
    setWindowTitle(QString::fromStdString(graph_.title));
    auto* layout = new QVBoxLayout(this);
    auto* picture = new QLabel(this);
    picture->setObjectName("graph");
    picture->setPixmap(QPixmap::fromImage(qt::normativeGraphImage(graph_)));
    layout->addWidget(picture);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    QPushButton* saveButton = buttons->addButton("&Save Graph...", QDialogButtonBox::ActionRole);
    connect(saveButton, &QPushButton::clicked, this, [this] { save(); });
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addWidget(buttons);
}

void NormativeGraphDialog::save() {
    const QString path = QFileDialog::getSaveFileName(
        this, "Save Graph", QString(),
        "PNG image (*.png);;SVG drawing (*.svg);;PDF document (*.pdf)");
    if (path.isEmpty())
        return;
    if (std::string problem = qt::saveNormativeGraph(graph_, path.toStdString()); !problem.empty())
        QMessageBox::warning(this, windowTitle(), QString::fromStdString(problem));
}

} // namespace tavi::app
