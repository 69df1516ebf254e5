// The one way from a transcript to its analysis: load, check (keeping the
// segmentation), choose the speaker, select and measure. The command line,
// the desktop program, batches and database building all come through here,
// so one transcript under one set of settings gives the same problems and
// the same values in every front end.
#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "analysis/measures.h"
#include "settings/measure_settings.h"
#include "settings/settings.h"
#include "transcript/checker.h"
#include "transcript/tran_line.h"

namespace tavi {

class Prompter;

// Everything an analysis reads besides the transcript, built once per run
// from the settings record: the checker's options (date format, header
// keywords) and the measure options with the word lists and dictionary
// attached. Front ends may adjust `measures` (command-line flags) before use.
struct AnalysisContext {
    CheckOptions check;
    MeasureOptions measures;
    TextEncoding encoding = TextEncoding::Utf8;        // files without a byte order mark
    std::shared_ptr<const MeasureResources> resources; // what `measures` points into

    // A context that shares these resources (word lists, dictionary) but
    // takes its options afresh from `settings`.
    AnalysisContext withSettings(const Settings& settings) const;
};

// Loads the word lists and dictionary named by the settings; a missing file
// is said through the prompter.
AnalysisContext analysisContext(const Settings& settings, Prompter& prompter);
// The same with resources already loaded (null: none).
AnalysisContext analysisContext(const Settings& settings,
                                std::shared_ptr<const MeasureResources> resources);

struct AnalysisRequest {
    int speaker = 0;     // the speaker asked for: 0 the 1st main speaker, 1 the 2nd
    bool measure = true; // false: check only
    // false: only the speaker analysed is measured, the other's record stays
    // empty (for a command that shows one speaker).
    bool bothSpeakers = true;
};

enum class LoadStatus { Ok, CannotOpen, Corrupted };

struct TranscriptAnalysis {
    LoadStatus load = LoadStatus::Ok;
    CheckResult check;         // problems, speaker table, timings, the segmentation
    int speaker = 0;           // the speaker analysed: the one asked for, or the 1st
    bool speakerReset = false; // the 2nd speaker was asked for and there is none
    MeasureResult result;      // filled when measuring was asked for

    bool hasErrors() const { return check.hasErrors; }
    const SpeakerMeasures& measures() const { return result.speakers[speaker == 1 ? 1 : 0]; }
    // The transcript cut's outcome when the cut was not complete, else empty.
    std::string_view cutMessage() const;
    // What to say before the results, in order: the speaker reset and the
    // transcript cut's outcome.
    std::vector<std::string> messages() const;
};

// What is said when the 2nd speaker is asked for and the transcript has none.
std::string_view speakerResetMessage();

// Analyses transcript lines (the desktop program's open document).
TranscriptAnalysis analyseTranscript(const TranLines& lines, const AnalysisContext& context,
                                     const AnalysisRequest& request = {});

// Analyses a whole text (UTF-8, lines ended by LF, CR LF or CR).
TranscriptAnalysis analyseText(std::string_view text, const AnalysisContext& context,
                               const AnalysisRequest& request = {});

// Reads a transcript file and analyses it. A file that cannot be read, or one
// to be measured whose text holds a NUL character, gives a load status and
// nothing else; such a file is still checked, so its problems can be listed.
TranscriptAnalysis analyseFile(const std::filesystem::path& path, const AnalysisContext& context,
                               const AnalysisRequest& request = {});

} // namespace tavi
