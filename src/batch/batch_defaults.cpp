// Batch selections in the user settings file.
#include "batch/batch_defaults.h"

#include "batch/selection_file.h"
#include "settings/section_save.h"

namespace tavi {

BatchSelections defaultBatchSelections(const Settings& settings) {
    BatchSelections s;
    applyBatchSettings(s, settings.sectionLines("BATCH"));
    return s;
}

SaveOutcome saveBatchDefaults(const BatchSelections& selections, const Settings& settings,
                              Prompter& prompter) {
    SectionSaveRequest request;
    request.file = settings.userSettingsFile();
    request.keyword = "BATCH";
    request.lines = batchSectionLines(selections);
    request.question = kSaveSettingsQuestion;
    request.savingAllowed = settings.canSaveDefaults();
    request.validate = [&] {
        if (std::optional<MissingValueProblem> problem = validateMissingValues(selections)) {
            prompter.inform(problem->message);
            return false;
        }
        return true;
    };
    return saveSection(request, prompter);
}

} // namespace tavi
