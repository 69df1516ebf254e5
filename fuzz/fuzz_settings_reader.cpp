// Fuzzes everything that reads a settings file: the keyword line reader, the
// user-level and program-level loaders, the label file reader and the section
// merge of the save procedure. No input may crash them or read outside it.
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "settings/label_table.h"
#include "settings/section_save.h"
#include "settings/settings.h"
#include "settings/startup.h"

namespace {

class SilentPrompter final : public tavi::Prompter {
public:
    void inform(std::string_view) override {}
    tavi::Answer ask(std::string_view) override { return tavi::Answer::No; }
    bool confirm(std::string_view) override { return false; }
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::string_view bytes(reinterpret_cast<const char*>(data), size);
    SilentPrompter prompter;
    // Folders that do not exist, so relative folder values are refused
    // without touching the disk.
    const std::string nowhere = "/nonexistent-tavi-fuzz/";
    tavi::Settings settings = tavi::defaultSettings(nowhere, nowhere, nowhere, {});
    std::vector<tavi::KeywordLine> lines = tavi::parseKeywordText(bytes);
    tavi::applyUserLevelLines(lines, nowhere + "TAVI.ini", {}, settings, prompter);
    tavi::applyLabelText(bytes, settings.labels);
    tavi::mergedSectionLines(bytes, "ASET", {"ASET"});
    return 0;
}
