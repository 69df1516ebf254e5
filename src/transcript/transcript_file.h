// The ".tvi" transcript file: reading bytes into numbered lines, writing the
// text back with a byte order mark, the automatic backup name, and the texts
// the desktop program shows for a linked pair of transcripts.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "base/file_io.h"
#include "base/text.h"
#include "transcript/tran_line.h"

namespace tavi {

struct LoadedTranscript {
    bool ok = false;     // false when the file could not be opened or read
    std::string text;    // the whole text as UTF-8, without the byte order mark
    TranLines lines;     // `text` cut into numbered lines
    bool hadBom = false; // the file began with the UTF-8 byte order mark
    bool wasUtf8 = true; // false when the bytes were read as Windows-1252
};

// Reads a transcript file: UTF-8 with or without byte order mark; bytes that
// are not valid UTF-8 are read as Windows-1252. `encoding` is the language
// settings' choice for files without a byte order mark.
LoadedTranscript loadTranscript(const std::filesystem::path& path,
                                TextEncoding encoding = TextEncoding::Utf8);

// The whole text of a transcript file as UTF-8 (decoded as above), without
// cutting it into lines; false when the file cannot be read.
bool readTranscriptText(const std::filesystem::path& path, std::string& text,
                        TextEncoding encoding = TextEncoding::Utf8);

// The same for bytes already in memory.
LoadedTranscript decodeTranscript(std::string_view bytes,
                                  TextEncoding encoding = TextEncoding::Utf8);

// Text cut into lines at LF, CR LF or a lone CR, numbered from 1.
TranLines splitTranscriptLines(std::string_view text);

// Writes `text` with the UTF-8 byte order mark first, through a temporary file.
WriteStatus saveTranscript(const std::filesystem::path& path, std::string_view text);

// The automatic backup file of a document: its file name cut at the first ".",
// in `backupFolder`, with ".$VI" appended ("story.final.tvi" -> "story.$VI").
std::filesystem::path backupPath(const std::filesystem::path& document,
                                 const std::filesystem::path& backupFolder);

// "Warning: unable to save automatic backup file (" name ")".
std::string backupFailedMessage(const std::filesystem::path& backup);

// Linked pair texts: "%s LINKED WITH %s", "Unlink %s and %s?",
// "%s and %s are no longer linked.".
std::string linkedCaption(std::string_view first, std::string_view second);
std::string unlinkQuestion(std::string_view first, std::string_view second);
std::string unlinkedMessage(std::string_view first, std::string_view second);

} // namespace tavi
