// The save-as-default procedure for one section of TAVI.ini.
#include "settings/section_save.h"

#include "base/file_io.h"
#include "base/text.h"
#include "settings/keyword_file.h"

namespace tavi {

std::vector<std::string> mergedSectionLines(std::string_view presentBytes,
                                            const std::vector<std::string>& keywords,
                                            const std::vector<std::string>& newLines) {
    std::vector<std::string> lines = newLines;
    DecodedText present = decodeText(presentBytes);
    for (std::string_view line : splitLines(present.utf8)) {
        line = trimLeft(line);
        if (line.empty())
            continue;
        const std::string_view head = splitAtFirstBlank(line).first;
        bool replaced = false;
        for (const std::string& keyword : keywords)
            replaced = replaced || keyIs(head, keyword);
        if (!replaced)
            lines.emplace_back(line);
    }
    return lines;
}

std::vector<std::string> mergedSectionLines(std::string_view presentBytes, std::string_view keyword,
                                            const std::vector<std::string>& newLines) {
    return mergedSectionLines(presentBytes, std::vector<std::string>{std::string(keyword)},
                              newLines);
}

SaveOutcome saveSection(const SectionSaveRequest& request, Prompter& prompter) {
    return saveSections(request, {}, prompter);
}

SaveOutcome saveSections(const SectionSaveRequest& request,
                         const std::vector<std::string>& alsoReplaced, Prompter& prompter) {
    if (!request.savingAllowed) {
        prompter.inform("Default settings cannot be saved on this computer.");
        return SaveOutcome::NotAllowed;
    }
    if (prompter.ask(request.question) != Answer::Yes)
        return SaveOutcome::NotAnswered;
    if (request.validate && !request.validate())
        return SaveOutcome::Invalid;

    std::string present;
    if (!readFile(request.file, present))
        present.clear();
    std::vector<std::string> keywords = alsoReplaced;
    keywords.insert(keywords.begin(), request.keyword);
    std::vector<std::string> lines = mergedSectionLines(present, keywords, request.lines);
    const std::string shown = request.file.string();
    switch (writeKeywordFile(request.file, lines)) {
    case WriteStatus::Ok:
        prompter.inform(std::string(request.savedMessage) + shown);
        return SaveOutcome::Saved;
    case WriteStatus::CannotOpen:
        prompter.inform("Cannot write to " + shown + " (not saved)");
        return SaveOutcome::CannotWrite;
    case WriteStatus::WriteFailed:
        break;
    }
    prompter.inform("Problem writing to " + shown + " (not saved)");
    return SaveOutcome::WriteFailed;
}

} // namespace tavi
