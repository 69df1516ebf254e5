// The transcript's child window in the frame: holds the document and its
// view, keeps the caption ("%s LINKED WITH %s" for a linked pair) and asks
// whether to save a changed transcript before it closes.
#pragma once

#include <QMdiSubWindow>
#include <functional>

namespace tavi::app {

class CTAVIDoc;
class CTAVIView;

class CTAVIFrame final : public QMdiSubWindow {
    Q_OBJECT
public:
    // `save` saves the document (asking for a name when it has none) and
    // returns whether it was saved.
    CTAVIFrame(CTAVIDoc* doc, std::function<bool(CTAVIFrame&)> save, QWidget* parent = nullptr);

    CTAVIDoc& doc() { return *doc_; }
    CTAVIView& view() { return *view_; }
    void updateCaption();
    // Asks "Save changes to %s?" for a changed document; false when the
    // person cancels or the save fails.
    bool queryClose();

protected:
    void closeEvent(QCloseEvent* e) override;

private:
    CTAVIDoc* doc_;
    CTAVIView* view_;
    std::function<bool(CTAVIFrame&)> save_;
};

} // namespace tavi::app
