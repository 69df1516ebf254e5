// Caption of a report window.
#include "app/rept_frame.h"

#include "app/rept_doc.h"
#include "app/rept_view.h"

namespace tavi::app {

CReptFrame::CReptFrame(CReptDoc* doc, QWidget* parent)
    : QMdiSubWindow(parent), doc_(doc), view_(new CReptView(*doc)) {
    doc_->setParent(this);
    setWidget(view_);
    setAttribute(Qt::WA_DeleteOnClose);
    setObjectName(QStringLiteral("CReptFrame"));
    updateCaption();
}

void CReptFrame::updateCaption() {
    setWindowTitle(doc_->title());
}

} // namespace tavi::app
