// Saving and reading the Standard Measures Report's chosen lines.
#include "reports/smr_settings.h"

namespace tavi {

std::vector<std::string> smrVariablesLines(const SmrVariables& variables) {
    std::vector<std::string> lines;
    for (size_t i = 0; i < kSmrLineCount; ++i)
        lines.push_back("SMR " + std::string(smrLines()[i].measureId) +
                        (variables.chosen[i] ? "_YES" : "_NO"));
    return lines;
}

SmrVariables smrVariablesFromLines(const std::vector<KeywordLine>& lines) {
    SmrVariables variables = SmrVariables::defaults();
    for (const KeywordLine& line : lines) {
        std::optional<FlagSubKey> flag = splitFlagSubKey(line.subKey);
        if (!flag)
            continue;
        for (size_t i = 0; i < kSmrLineCount; ++i)
            if (keyIs(flag->name, smrLines()[i].measureId))
                variables.chosen[i] = flag->value;
    }
    return variables;
}

SmrVariables smrVariablesFromSettings(const Settings& settings) {
    return smrVariablesFromLines(settings.sectionLines("SMR"));
}

} // namespace tavi
