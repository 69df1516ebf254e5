// The report's child window in the frame.
#pragma once

#include <QMdiSubWindow>

namespace tavi::app {

class CReptDoc;
class CReptView;

class CReptFrame final : public QMdiSubWindow {
    Q_OBJECT
public:
    explicit CReptFrame(CReptDoc* doc, QWidget* parent = nullptr);
    CReptDoc& doc() { return *doc_; }
    CReptView& view() { return *view_; }
    void updateCaption();

private:
    CReptDoc* doc_;
    CReptView* view_;
};

} // namespace tavi::app
