// The transcript's child window in the frame: holds the document and its
// view, keeps the caption ("%s LINKED WITH %s" for a linked pair), saves the
// transcript and asks whether to save a changed one before it closes.
#pragma once

#include "app/child_frame.h"

namespace tavi::app {

class CTAVIDoc;
class CTAVIView;

class CTAVIFrame final : public CChildFrame {
    Q_OBJECT
public:
    explicit CTAVIFrame(CTAVIDoc* doc, QWidget* parent = nullptr);

    CTAVIDoc& doc() { return *doc_; }
    CTAVIView& view() { return *view_; }
    void updateCaption();

    // Reads a transcript file into the window's (new) document, shows its
    // start and checks it; false with `error` set when it cannot be read.
    bool load(const QString& path, QString& error);
    // Saves under the document's name; asks for one with `askName` or when
    // the document has none. Failures are told to the person.
    bool save(bool askName) override;
    void print(QPrinter* printer) override;
    void copy() override;
    void selectAll() override;
    std::span<const MenuEntry> contextTable() const override;
    // Asks "Save changes to %s?" for a changed document.
    bool maybeSave() override;

protected:
    void closing() override;

private:
    CTAVIDoc* doc_;
    CTAVIView* view_;
};

} // namespace tavi::app
