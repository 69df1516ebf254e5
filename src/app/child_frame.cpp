// Closing a document window.
#include "app/child_frame.h"

#include <QCloseEvent>
#include <QPainter>
#include <QStyle>

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

void CChildFrame::setMarkedActive(bool active) {
    if (marked_ == active)
        return;
    marked_ = active;
    update();
}

void CChildFrame::paintEvent(QPaintEvent* e) {
    QMdiSubWindow::paintEvent(e);
    if (!marked_ || isMinimized() || isMaximized())
        return;
    QPainter p(this);
    const int band =
        std::max(2, style()->pixelMetric(QStyle::PM_MdiSubWindowFrameWidth, nullptr, this));
    const QColor colour = palette().color(QPalette::Active, QPalette::Highlight);
    const QRect r = rect();
    p.fillRect(QRect(r.left(), r.top(), r.width(), band), colour);
    p.fillRect(QRect(r.left(), r.bottom() - band + 1, r.width(), band), colour);
    p.fillRect(QRect(r.left(), r.top(), band, r.height()), colour);
    p.fillRect(QRect(r.right() - band + 1, r.top(), band, r.height()), colour);
}

} // namespace tavi::app
