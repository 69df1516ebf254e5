// The report's child window in the frame: shows the report and saves it as
// PDF, RTF or text, or adds it to the program's PDF batch.
#pragma once

#include <QPageLayout>
#include <functional>

#include "app/child_frame.h"

namespace tavi::app {

class CTAVIApp;
class CReptDoc;
class CReptView;

class CReptFrame final : public CChildFrame {
    Q_OBJECT
public:
    // `pdfLayout` gives the page of PDF files as "P&DF Printer Setup..." left it.
    CReptFrame(CReptDoc* doc, CTAVIApp& app, std::function<QPageLayout()> pdfLayout,
               QWidget* parent = nullptr);
    CReptDoc& doc() { return *doc_; }
    CReptView& view() { return *view_; }
    void updateCaption();

    // Save and Save As alike ask "Save report as": a format and its file, or
    // the PDF batch.
    bool save(bool askName) override;
    void print(QPrinter* printer) override;
    void copy() override;
    void selectAll() override;
    std::span<const MenuEntry> contextTable() const override;

    // Adds the report to the PDF batch, asking for the batch file first when
    // no batch is open; the file is written anew with every report.
    void addToPdfBatch();

private:
    CReptDoc* doc_;
    CReptView* view_;
    CTAVIApp& app_;
    std::function<QPageLayout()> pdfLayout_;
};

// "C&lose PDF Batch": finishes the open batch (and shows it when reports are
// displayed after saving). Does nothing without an open batch.
void closePdfBatch(CTAVIApp& app);

} // namespace tavi::app
