// The two document types, each described by its seven-field template text:
// window title, document name, new-file name, filter name, filter extension,
// file-type identifier, file-type name, separated by "\n".
#pragma once

#include <QString>
#include <QStringList>

namespace tavi::app {

inline constexpr const char* kTranscriptTemplate =
    "\nTran\nTranscript\nTAVI Transcript Files (*.tvi)\n.tvi\nTAVI.Transcript\nTAVI Transcript";
inline constexpr const char* kReportTemplate =
    "\nReport\nReport\nTAVI Report Files (*.txt)\n.txt\nTAVI.Report\nTAVI Report";

// The open and save dialogs offer transcripts under this filter.
inline constexpr const char* kTranscriptFilter = "TAVI Transcript File (*.tvi)";

enum class TemplateField {
    WindowTitle = 0,
    DocName,
    NewFileName,
    FilterName,
    FilterExt,
    FileTypeId,
    FileTypeName
};

inline QString templateField(const char* tmpl, TemplateField field) {
    const QStringList parts = QString::fromUtf8(tmpl).split(QLatin1Char('\n'));
    const auto index = static_cast<qsizetype>(field);
    return index < parts.size() ? parts[index] : QString();
}

} // namespace tavi::app
