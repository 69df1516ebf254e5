// Closing a document window.
#include "app/child_frame.h"

#include <QCloseEvent>

namespace tavi::app {

CChildFrame::CChildFrame(QWidget* parent) : QMdiSubWindow(parent) {
    setAttribute(Qt::WA_DeleteOnClose);
}

void CChildFrame::closeEvent(QCloseEvent* e) {
    if (!asked_ && !maybeSave()) {
        e->ignore();
        return;
    }
    closing();
    e->accept();
}

} // namespace tavi::app
