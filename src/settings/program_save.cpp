// Rewriting sections of the program-level settings file.
#include "settings/program_save.h"

#include <algorithm>

#include "base/file_io.h"
#include "base/text.h"
#include "settings/keyword_file.h"
#include "settings/section_save.h"

namespace tavi {

std::vector<std::string> mergedProgramLines(std::string_view presentBytes,
                                            const std::vector<std::string>& keywords,
                                            const std::vector<std::string>& newLines) {
    std::vector<std::string> lines = newLines;
    const DecodedText present = decodeText(presentBytes);
    for (std::string_view line : splitLines(present.utf8)) {
        line = trimLeft(line);
        if (line.empty())
            continue;
        const std::string_view keyword = splitAtFirstBlank(line).first;
        if (std::none_of(keywords.begin(), keywords.end(),
                         [&](const std::string& k) { return keyIs(keyword, k); }))
            lines.emplace_back(line);
    }
    return lines;
}

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
        mergedProgramLines(present, request.keywords, request.lines);
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
