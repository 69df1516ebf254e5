// Reading and writing selection files through the keyword-file reader/writer.
#include "batch/selection_file.h"

#include "base/prompter.h"

namespace tavi {

BatchSelections selectionsFromLines(const std::vector<KeywordLine>& lines) {
    BatchSelections s = BatchSelections::empty();
    for (const KeywordLine& line : lines)
        applySelectionLine(s, line.keyword, line.value);
    return s;
}

bool loadSelectionFile(const std::filesystem::path& path, BatchSelections& s, Prompter& prompter) {
    std::optional<std::vector<KeywordLine>> lines = readKeywordFile(path);
    if (!lines) {
        prompter.inform("Unable to open Batch selection file (" + path.string() + ")");
        return false;
    }
    s = selectionsFromLines(*lines);
    return true;
}

bool saveSelectionFile(const std::filesystem::path& path, const BatchSelections& s,
                       Prompter& prompter) {
    if (std::optional<MissingValueProblem> problem = validateMissingValues(s)) {
        prompter.inform(problem->message);
        return false;
    }
    switch (writeKeywordFile(path, selectionLines(s))) {
    case WriteStatus::Ok:
        prompter.inform("Selections saved in " + path.string());
        return true;
    case WriteStatus::CannotOpen:
        prompter.inform("Cannot write to " + path.string() + " (not saved)");
        return false;
    case WriteStatus::WriteFailed:
        break;
    }
    prompter.inform("Problem writing to " + path.string() + " (not saved)");
    return false;
}

void applyBatchSettings(BatchSelections& s, const std::vector<KeywordLine>& settingsLines) {
    bool any = false;
    BatchSelections loaded = BatchSelections::empty();
    for (const KeywordLine& line : settingsLines) {
        if (!keyIs(line.keyword, "BATCH") || line.value.empty())
            continue;
        any = true;
        applySelectionLine(loaded, line.subKey, line.rest);
    }
    if (any)
        s = loaded;
}

} // namespace tavi
