// Rewriting sections of the program-level settings file.
#include "settings/program_save.h"

#include "base/file_io.h"
#include "settings/keyword_file.h"
#include "settings/section_save.h"

namespace tavi {

std::string programCannotSaveMessage(const std::filesystem::path& file) {
    return std::string(kProgramCannotSave) + "\n\nThe settings for every user are kept in " +
           file.string() +
           ", which cannot be written here. An administrator of this computer can edit that "
           "file.";
}

SaveOutcome saveProgramSection(const ProgramSaveRequest& request, Prompter& prompter) {
    if (prompter.ask(kSaveProgramQuestion) != Answer::Yes)
        return SaveOutcome::NotAnswered;
    std::string present;
    if (!readFile(request.file, present))
        present.clear();
    const std::vector<std::string> lines =
        mergedSectionLines(present, request.keywords, request.lines);
    switch (writeKeywordFile(request.file, lines)) {
    case WriteStatus::Ok:
        prompter.inform(std::string(kSettingsSavedIn) + request.file.string());
        return SaveOutcome::Saved;
    case WriteStatus::CannotOpen:
        prompter.inform(programCannotSaveMessage(request.file));
        return SaveOutcome::CannotWrite;
    case WriteStatus::WriteFailed:
        break;
    }
    prompter.inform(programCannotSaveMessage(request.file));
    return SaveOutcome::WriteFailed;
}

} // namespace tavi
