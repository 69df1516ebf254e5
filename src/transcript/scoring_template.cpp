// Reading template files and the scores a transcript holds.
#include "transcript/scoring_template.h"

#include <algorithm>
#include <charconv>
#include <filesystem>

#include "base/file_io.h"
#include "base/text.h"

namespace tavi {

namespace {

std::optional<int> readInt(std::string_view text) {
    text = trim(text);
    int n = 0;
    const char* end = text.data() + text.size();
    auto [ptr, ec] = std::from_chars(text.data(), end, n);
    if (text.empty() || ec != std::errc() || ptr != end)
        return std::nullopt;
    return n;
}

// "WORD rest": the keyword upper-cased and the rest trimmed.
std::pair<std::string, std::string_view> splitKeyword(std::string_view line) {
    size_t blank = line.find_first_of(" \t");
    std::string_view word = line.substr(0, blank);
    std::string upper(word);
    std::ranges::transform(upper, upper.begin(), [](unsigned char c) {
        return static_cast<char>(c >= 'a' && c <= 'z' ? c - 'a' + 'A' : c);
    });
    return {upper, blank == std::string_view::npos ? std::string_view() : trim(line.substr(blank))};
}

void finishComponent(TemplateComponent& c) {
    if (c.levels.empty())
        return;
    auto [lo, hi] = std::ranges::minmax(c.levels, {}, &ScoreLevel::score);
    c.minScore = lo.score;
    c.maxScore = hi.score;
    std::ranges::sort(c.levels, std::greater<>(), &ScoreLevel::score);
}

} // namespace

int ScoringTemplate::maxComposite() const {
    int total = 0;
    for (const TemplateComponent& c : components)
        total += rule == CompositeRule::CountCorrect ? 1 : c.maxScore;
    return total;
}

ParsedTemplate parseScoringTemplate(std::string_view text) {
    ParsedTemplate parsed;
    ScoringTemplate& t = parsed.scoring;
    auto fault = [&](int line, std::string message) {
        parsed.faults.push_back({line, std::move(message)});
    };
    int number = 0;
    const std::string decoded = decodeText(text).utf8;
    for (std::string_view raw : splitLines(decoded)) {
        ++number;
        std::string_view line = trim(raw);
        if (line.empty() || line.front() == '#')
            continue;
        auto [keyword, rest] = splitKeyword(line);
        TemplateComponent* current = t.components.empty() ? nullptr : &t.components.back();
        if (keyword == "KEY") {
            t.key = rest;
        } else if (keyword == "NAME") {
            t.name = rest;
        } else if (keyword == "STEM") {
            t.stem = rest;
        } else if (keyword == "COMPOSITE") {
            if (equalsIgnoreCase(rest, "SUM"))
                t.rule = CompositeRule::Sum;
            else if (equalsIgnoreCase(rest, "CORRECT"))
                t.rule = CompositeRule::CountCorrect;
            else
                fault(number, "unknown composite rule " + std::string(rest));
        } else if (keyword == "COMPONENT") {
            if (current)
                finishComponent(*current);
            if (rest.empty() || rest.find(':') != std::string_view::npos)
                fault(number, "a component needs a name without a colon");
            t.components.push_back({});
            t.components.back().name = rest;
        } else if (keyword == "VARIABLE") {
            (current ? current->variable : t.variable) = rest;
        } else if (keyword == "ABOUT" && current) {
            current->description += (current->description.empty() ? "" : " ") + std::string(rest);
        } else if (keyword == "SCORE" && current) {
            auto [scoreText, meaning] = splitKeyword(rest);
            std::optional<int> score = readInt(scoreText);
            if (!score)
                fault(number, "a score must be a whole number");
            else
                current->levels.push_back({*score, std::string(meaning)});
        } else {
            fault(number, "unknown line " + std::string(keyword));
        }
    }
    if (!t.components.empty())
        finishComponent(t.components.back());
    if (t.key.empty())
        fault(0, "the template has no KEY line");
    if (t.stem.empty())
        t.stem = t.key;
    if (t.variable.empty())
        t.variable = t.key;
    if (t.name.empty())
        t.name = t.key;
    for (TemplateComponent& c : t.components) {
        if (c.levels.empty())
            fault(0, "component " + c.name + " has no SCORE lines");
        if (c.variable.empty())
            c.variable = t.key + "_" + c.name;
    }
    return parsed;
}

TemplateSet::TemplateSet(std::vector<ScoringTemplate> templates)
    : templates_(std::move(templates)) {
    auto rank = [](const ScoringTemplate& t) {
        auto it = std::ranges::find(kTemplateKeys, std::string_view(t.key));
        return it - std::begin(kTemplateKeys);
    };
    std::ranges::stable_sort(templates_, {}, rank);
}

const ScoringTemplate* TemplateSet::find(std::string_view key) const {
    auto it =
        std::ranges::find_if(templates_, [&](const ScoringTemplate& t) { return t.key == key; });
    return it == templates_.end() ? nullptr : &*it;
}

TemplateSet loadTemplateFolder(const std::string& folder, std::vector<std::string>* faults) {
    namespace fs = std::filesystem;
    std::vector<fs::path> files;
    std::error_code ec;
    for (fs::directory_iterator it(folder, ec), end; !ec && it != end; it.increment(ec))
        if (it->path().extension() == ".txt")
            files.push_back(it->path());
    std::ranges::sort(files);
    std::vector<ScoringTemplate> templates;
    for (const fs::path& file : files) {
        std::string bytes;
        if (!readFile(file, bytes))
            continue;
        ParsedTemplate parsed = parseScoringTemplate(bytes);
        if (faults)
            for (const TemplateFault& f : parsed.faults)
                faults->push_back(file.filename().string() + ": line " + std::to_string(f.line) +
                                  ": " + f.message);
        bool duplicate = std::ranges::any_of(
            templates, [&](const ScoringTemplate& t) { return t.key == parsed.scoring.key; });
        if (!parsed.scoring.key.empty() && !duplicate)
            templates.push_back(std::move(parsed.scoring));
    }
    return TemplateSet(std::move(templates));
}

int TemplateScores::composite() const {
    int total = 0;
    for (const ComponentScore& c : components) {
        if (!c.score || c.outOfRange)
            continue;
        if (scoring && scoring->rule == CompositeRule::CountCorrect)
            total += *c.score == c.component->maxScore ? 1 : 0;
        else
            total += *c.score;
    }
    return total;
}

int TemplateScores::scored() const {
    return static_cast<int>(std::ranges::count_if(
        components, [](const ComponentScore& c) { return c.score && !c.outOfRange; }));
}

TemplateScores readTemplateScores(const ScoringTemplate& scoring,
                                  const std::vector<HeaderLine>& headers) {
    TemplateScores scores;
    scores.scoring = &scoring;
    for (const TemplateComponent& c : scoring.components) {
        ComponentScore s;
        s.component = &c;
        const std::string keyword = scoring.keyword(c);
        auto it = std::ranges::find_if(
            headers, [&](const HeaderLine& h) { return equalsIgnoreCase(h.keyword, keyword); });
        if (it != headers.end()) {
            scores.present = true;
            s.line = it->line;
            s.text = it->value;
            s.score = readInt(it->value);
            s.outOfRange = s.score && (*s.score < c.minScore || *s.score > c.maxScore);
        }
        scores.components.push_back(std::move(s));
    }
    return scores;
}

} // namespace tavi
