// A report and its link back to its transcript.
#include "app/rept_doc.h"

#include <QFileInfo>

#include "app/tavi_doc.h"

namespace tavi::app {

CReptDoc::CReptDoc(ReportContent content, CTAVIDoc* source, QObject* parent)
    : QObject(parent), content_(std::move(content)), source_(source), hadSource_(source) {}

CTAVIDoc* CReptDoc::source() const {
    return source_.data();
}

QString CReptDoc::title() const {
    if (!savedPath_.isEmpty())
        return QFileInfo(savedPath_).fileName();
    if (source_)
        return content_.title + QStringLiteral(" - ") + source_->title();
    return content_.title;
}

} // namespace tavi::app
