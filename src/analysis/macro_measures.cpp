// Template scores and the Subordination Index.
#include "analysis/macro_measures.h"

#include <algorithm>
#include <charconv>

#include "analysis/measure_context.h"
#include "base/text.h"

namespace tavi {

std::vector<MacroScore> scoreTemplates(const TemplateSet& templates,
                                       const std::vector<HeaderLine>& headers) {
    std::vector<MacroScore> out;
    for (const ScoringTemplate& t : templates.all()) {
        TemplateScores scores = readTemplateScores(t, headers);
        if (!scores.present)
            continue;
        MacroScore m{t.key,
                     t.name,
                     t.variable,
                     t.rule,
                     t.maxComposite(),
                     scores.scored(),
                     Value::count(scores.composite()),
                     Value::count(scores.scored()),
                     {}};
        for (const ComponentScore& s : scores.components) {
            const TemplateComponent& c = *s.component;
            MacroComponent mc{c.name, c.variable, c.description, {}, {}, c.minScore, c.maxScore};
            if (s.score && !s.outOfRange) {
                mc.score = Value::count(*s.score);
                auto level = std::ranges::find(c.levels, *s.score, &ScoreLevel::score);
                if (level != c.levels.end())
                    mc.meaning = level->meaning;
            }
            m.components.push_back(std::move(mc));
        }
        out.push_back(std::move(m));
    }
    return out;
}

std::optional<int> siClauseCount(std::string_view code, std::string_view prefix) {
    if (code.size() <= prefix.size() || !equalsIgnoreCase(code.substr(0, prefix.size()), prefix))
        return std::nullopt;
    std::string_view digits = code.substr(prefix.size());
    int n = 0;
    auto [ptr, ec] = std::from_chars(digits.data(), digits.data() + digits.size(), n);
    if (ec != std::errc() || ptr != digits.data() + digits.size() || n < 0)
        return std::nullopt;
    return n;
}

std::optional<int> siClauseCount(const Utterance& u, std::string_view prefix) {
    for (const Code& c : u.codes())
        if (auto n = siClauseCount(c.text, prefix))
            return n;
    return std::nullopt;
}

void fillMacroAnalysis(const SpeakerView& v, SpeakerMeasures& m) {
    const MeasureOptions& o = v.c.options;
    if (o.templates && v.speaker == 0)
        m.macro = scoreTemplates(*o.templates, v.c.t.headers);
    for (const MacroScore& s : m.macro) {
        std::optional<MeasureId> id = measureIdByName(s.variable);
        if (id && measureFormat(*id) == MeasureFormat::Count)
            m[*id] = s.composite;
    }
    SiSummary& si = m.si;
    si = v.tally().si;
    m[MeasureId::SI] = si.index();
    si.codedValue = Value::count(si.coded);
}

} // namespace tavi
