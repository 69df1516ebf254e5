// What explore does to transcripts: inserting a code into the found
// utterances (or after the found words), deleting a code, and keeping the
// found utterances as a transcript of their own. Each gives new text; only
// writeEditedTranscript touches a file, through an atomic save that first
// keeps the file's present bytes as its automatic backup copy.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "base/file_io.h"
#include "explore/explore.h"
#include "transcript/segmented_transcript.h"

namespace tavi {

enum class CodePlace {
    Utterance, // " [CODE]" before the terminator
    Words,     // "[CODE]" right after each found word (utterances without one get none)
};

struct CodeEdit {
    std::string text; // the whole new text, line ends as they were
    int changed = 0;  // codes inserted or deleted
};

// Inserts "[code]" (the brackets are added when missing) into the utterances
// of `matches`.
CodeEdit insertExploreCode(std::string_view text, const std::vector<ExploreMatch>& matches,
                           std::string_view code, CodePlace place);

// Deletes every code matching `item` (as a code list item: "EW" or "EW*",
// without regard to case and to any ":" part) from the given lines, with the
// blank before a code that stood apart.
CodeEdit deleteExploreCode(std::string_view text, const std::vector<int>& lines,
                           std::string_view item);

// The lines of every utterance of a transcript; the lines of the matches.
std::vector<int> utteranceLines(const SegmentedTranscript& t);
std::vector<int> matchLines(const std::vector<ExploreMatch>& matches);

// What a separate transcript keeps besides the "$" line and the found
// utterances ("YOLSAVE"/"EMULTSAVE" "SAVEASINCL...").
struct SeparateOptions {
    bool plusLines = true; // "SAVEASINCLPLUS" (the header)
    bool timing = false;   // "SAVEASINCLTIME": "-" lines
    bool pauses = false;   // "SAVEASINCLPAUSE": ":" and ";" lines
    bool comments = false; // "SAVEASINCLCOMMENT": "=" lines
    std::string prefix;    // "PREFIX": put before the file name of each saved transcript

    bool operator==(const SeparateOptions&) const = default;
};

// The separate transcript: the kept lines of other kinds and the found
// utterances, in their order, each ended with LF.
std::string separateTranscriptText(const TranLines& lines, const std::vector<ExploreMatch>& matches,
                                   const SeparateOptions& options);

// The "YOLSAVE"/"EMULTSAVE" lines and back.
std::vector<std::string> separateOptionLines(std::string_view keyword,
                                             const SeparateOptions& options);
void applySeparateOptionLine(const KeywordLine& line, SeparateOptions& options);

// The questions asked about a transcript that has errors.
std::string codeErrorsQuestion(std::string_view name);     // "... Would you like it coded?"
std::string decodeErrorsQuestion(std::string_view name);   // "... Would you like it de-coded?"
std::string separateErrorsQuestion(std::string_view name); // "... saved as a transcript?"

enum class EditWriteStatus { Ok, BackupFailed, WriteFailed };

// Keeps the file's present bytes as its backup copy (backupPath in
// `backupFolder`, made when missing), then saves `text` over the file with the
// byte order mark, atomically. Nothing is written when the backup fails.
EditWriteStatus writeEditedTranscript(const std::filesystem::path& path, std::string_view text,
                                      const std::filesystem::path& backupFolder);

} // namespace tavi
