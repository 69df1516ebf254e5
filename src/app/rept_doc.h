// The report document: one finished report (its title, its rich text for the
// window and its saved forms) and the transcript it was made from.
#pragma once

#include <QObject>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <functional>
#include <string>

#include "reports/report.h"
#include "reports/save_state.h"

namespace tavi::app {

class CTAVIDoc;

// A report in every form the desktop program shows or saves.
struct ReportContent {
    Report report;    // the structured report the forms below were written from
    QString title;    // the report's name, e.g. "Standard Measures Report"
    QString html;     // shown in the report window, printed, written to PDF
    std::string text; // plain text ("TXT - Text File")
    std::string rtf;  // "RTF - Rich Text Format (Word)"
    ReportKind form = ReportKind::RichText; // a grid saves as CSV, TSV or TXT cells
};

class CReptDoc final : public QObject {
    Q_OBJECT
public:
    CReptDoc(ReportContent content, CTAVIDoc* source, QObject* parent = nullptr);

    const ReportContent& content() const { return content_; }
    QString title() const;
    // The transcript the report was made from; null once it was closed.
    CTAVIDoc* source() const;
    bool sourceClosed() const { return hadSource_ && source_.isNull(); }
    QString savedPath() const { return savedPath_; }
    void setSavedPath(const QString& path) { savedPath_ = path; }

    // What a double-click on a line of the report does, given that line's
    // text and the texts of the lines above it, nearest first (e.g. open a
    // transcript at the line a problem names); empty: nothing.
    std::function<void(const QStringList&)> lineActivated;

private:
    ReportContent content_;
    QPointer<CTAVIDoc> source_;
    bool hadSource_;
    QString savedPath_;
};

} // namespace tavi::app
