// Scoring templates: the rubrics a clinician scores a whole sample with (story
// structure, expository and persuasive organisation, comprehension questions,
// behaviours seen while stuttering). Each template is a text file the user can
// copy and edit; a scored transcript holds one "+" header line per component,
// "+ NSS Introduction: 3", whose keyword is the template's stem and the
// component's name. The checker reads the lines against the template and the
// measures add them up.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "transcript/segmented_transcript.h"

namespace tavi {

// How a template's composite is formed from its component scores.
enum class CompositeRule {
    Sum,          // the scores added up
    CountCorrect, // the number of components scored at their maximum (right answers)
};

struct ScoreLevel {
    int score = 0;
    std::string meaning; // what a sample scored this shows
};

struct TemplateComponent {
    std::string name;        // "Introduction"; the header keyword is stem + " " + name
    std::string variable;    // the batch column, "NSS_Intro"
    std::string description; // what the component looks at
    std::vector<ScoreLevel> levels;
    int minScore = 0;
    int maxScore = 0;
};

struct ScoringTemplate {
    std::string key;      // "NSS", "ESS", "PSS", "CQ", "FCB", "ONQ", "ONC"
    std::string name;     // "Narrative Scoring Scheme"
    std::string stem;     // the header keyword stem, "NSS"
    std::string variable; // the composite's column, "NSS", "CQ Total"
    CompositeRule rule = CompositeRule::Sum;
    std::vector<TemplateComponent> components;

    // The header keyword of a component: "NSS Introduction".
    std::string keyword(const TemplateComponent& c) const { return stem + " " + c.name; }
    // The highest composite possible.
    int maxComposite() const;
};

// A fault in a template file, with its line.
struct TemplateFault {
    int line = 0;
    std::string message;
};

struct ParsedTemplate {
    ScoringTemplate scoring;
    std::vector<TemplateFault> faults; // a template with faults is still usable when it has a key
};

// Reads a template file's text. Lines: "KEY", "NAME", "STEM", "VARIABLE",
// "COMPOSITE SUM|CORRECT", then per component "COMPONENT name", "VARIABLE",
// "ABOUT text" and "SCORE n text" lines; "#" starts a comment line.
ParsedTemplate parseScoringTemplate(std::string_view text);

// The templates in force, in the menu order of their keys.
class TemplateSet {
public:
    TemplateSet() = default;
    explicit TemplateSet(std::vector<ScoringTemplate> templates);

    const std::vector<ScoringTemplate>& all() const { return templates_; }
    const ScoringTemplate* find(std::string_view key) const;
    bool empty() const { return templates_.empty(); }

private:
    std::vector<ScoringTemplate> templates_;
};

// The template keys in menu order.
inline constexpr std::string_view kTemplateKeys[] = {"NSS", "ESS", "PSS", "CQ",
                                                     "FCB", "ONQ", "ONC"};

// Every "*.txt" template in a folder; faults go to `faults` as "file: line n: message".
TemplateSet loadTemplateFolder(const std::string& folder, std::vector<std::string>* faults);

// One component's score as a transcript holds it.
struct ComponentScore {
    const TemplateComponent* component = nullptr;
    int line = 0;             // the header line; 0 when the transcript has none
    std::optional<int> score; // empty: left unscored or unreadable
    bool outOfRange = false;  // a number outside the component's range
    std::string text;         // the value as written
};

// A template's lines in one transcript.
struct TemplateScores {
    const ScoringTemplate* scoring = nullptr;
    std::vector<ComponentScore> components; // in template order
    bool present = false;                   // at least one of its lines is there
    int composite() const;                  // by the template's rule, over scored components
    int scored() const;                     // components with a score
};

// The header lines of `headers` that belong to `scoring` (keywords compared
// without regard to case).
TemplateScores readTemplateScores(const ScoringTemplate& scoring,
                                  const std::vector<HeaderLine>& headers);

} // namespace tavi
