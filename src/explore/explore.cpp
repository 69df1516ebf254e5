// The explore search over an analysed transcript.
#include "explore/explore.h"

#include <algorithm>
#include <set>

#include "analysis/code_lists.h"
#include "analysis/maze_kind.h"
#include "analysis/selection.h"
#include "base/text.h"
#include "transcript/transcript_file.h"

namespace tavi {

namespace {

bool isTerminator(char c) {
    return c == '.' || c == '!' || c == '?' || c == '~' || c == '>' || c == '^';
}

bool endsWord(char c) {
    return isBlank(c) || isTerminator(c) || c == ')' || c == '[' || c == ',' || c == '"' ||
           c == '{';
}

bool startsWord(char c) {
    return isBlank(c) || c == '(' || c == '<' || c == '"';
}

} // namespace

std::vector<size_t> wordEnds(std::string_view body, const Utterance& u) {
    std::vector<size_t> ends;
    size_t from = body.empty() ? 0 : 1; // after the speaker identifier
    for (const Word& w : u.words) {
        std::string_view text = w.text();
        size_t found = std::string_view::npos;
        for (size_t at = body.find(text, from); at != std::string_view::npos && !text.empty();
             at = body.find(text, at + 1)) {
            size_t after = at + text.size();
            bool before = at == 0 || startsWord(body[at - 1]);
            bool behind = after == body.size() || endsWord(body[after]);
            if (before && behind) {
                found = after;
                break;
            }
        }
        ends.push_back(found);
        if (found != std::string_view::npos)
            from = found;
    }
    return ends;
}

namespace {

bool wordInArea(const Word& w, ExploreArea area) {
    if (w.omitted || w.unintelligible)
        return false;
    switch (area) {
    case ExploreArea::MainBody:
        return !w.inMaze;
    case ExploreArea::Mazes:
        return w.inMaze;
    case ExploreArea::Both:
        break;
    }
    return true;
}

// The texts of a word an item is compared with: its produced form (as
// written and its root) and its identified root.
bool wordMatches(const Word& w, std::string_view item, ExploreRoots roots) {
    std::string_view identified = w.rootIdentification();
    std::string_view written = w.text();
    if (size_t bar = written.find('|'); bar != std::string_view::npos)
        written = written.substr(0, bar);
    bool produced = exploreItemMatches(item, written) || exploreItemMatches(item, w.root());
    bool ident = !identified.empty() && exploreItemMatches(item, identified);
    switch (roots) {
    case ExploreRoots::Produced:
        return produced;
    case ExploreRoots::Identified:
        return identified.empty() ? produced : ident;
    case ExploreRoots::Either:
        break;
    }
    return produced || ident;
}

bool hasMazeOfKind(const Utterance& u, const ExploreCriteria& c) {
    auto mazes = u.mazes();
    if (mazes.empty())
        return false;
    if (!c.mazeFilledPauses && !c.mazeRepetitions && !c.mazeRevisions)
        return true;
    for (size_t m = 0; m < mazes.size(); ++m) {
        MazeKind kind = classifyMaze(u, static_cast<int>(m), isDefaultFilledPause, nullptr);
        bool filled = kind == MazeKind::FilledPauseSingle || kind == MazeKind::FilledPauseMulti;
        bool repetition = kind == MazeKind::RepetitionPartWord ||
                          kind == MazeKind::RepetitionWord || kind == MazeKind::RepetitionPhrase;
        if ((filled && c.mazeFilledPauses) || (repetition && c.mazeRepetitions) ||
            (!filled && !repetition && c.mazeRevisions))
            return true;
    }
    return false;
}

bool hasType(const Utterance& u, const ResponseType& r, ExploreType type,
             const ExploreCriteria& c) {
    auto terminated = [&](Terminator t) { return u.hasTerminator && u.terminator == t; };
    switch (type) {
    case ExploreType::Statement:
        return terminated(Terminator::Statement);
    case ExploreType::Exclamation:
        return terminated(Terminator::Exclamation);
    case ExploreType::Question:
        return terminated(Terminator::Question);
    case ExploreType::Prompt:
        return terminated(Terminator::Prompt);
    case ExploreType::Abandoned:
        return terminated(Terminator::Abandoned);
    case ExploreType::Interrupted:
        return terminated(Terminator::Interrupted);
    case ExploreType::RespQuestion:
        return r.question;
    case ExploreType::RespYesNo:
        return r.yesNo;
    case ExploreType::RespPrompt:
        return r.prompt;
    case ExploreType::Imitation:
        return r.imitation;
    case ExploreType::OneWord:
        return r.oneWord;
    case ExploreType::Unintelligible:
        return u.intelligibility == Intelligibility::Unintelligible;
    case ExploreType::PartlyIntelligible:
        return u.intelligibility == Intelligibility::Partly;
    case ExploreType::Nonverbal:
        return u.nonverbal;
    case ExploreType::Maze:
        return hasMazeOfKind(u, c);
    case ExploreType::Pause:
        return !u.pauses().empty();
    case ExploreType::Omission:
        return std::any_of(u.words.begin(), u.words.end(), [](const Word& w) {
            return w.omitted || w.omittedBoundMorpheme || w.omittedClitic;
        });
    }
    return false;
}

int utteranceLength(const Utterance& u, bool morphemes) {
    int n = 0;
    for (const Word& w : u.words) {
        if (!w.isMainBodyWord())
            continue;
        n += 1;
        if (morphemes)
            n += static_cast<int>(w.boundMorphemes().size());
    }
    return n;
}

// Tests one utterance; the matched words and items go into `match`.
bool meets(const Utterance& u, const ResponseType& r, const ExploreCriteria& c,
           const std::vector<std::string>& wordItems, const std::vector<std::string>& codeItems,
           ExploreMatch& match) {
    std::vector<bool> outcomes;
    for (ExploreType t : c.types)
        outcomes.push_back(hasType(u, r, t, c));
    if (c.hasLength()) {
        int n = utteranceLength(u, c.lengthInMorphemes);
        outcomes.push_back(n >= c.lengthFrom && (c.lengthTo == 0 || n <= c.lengthTo));
    }
    if (!wordItems.empty()) {
        bool any = false;
        for (size_t i = 0; i < u.words.size(); ++i) {
            const Word& w = u.words[i];
            if (!wordInArea(w, c.area))
                continue;
            for (const std::string& item : wordItems) {
                if (wordMatches(w, item, c.roots)) {
                    match.words.push_back(static_cast<int>(i));
                    match.items.emplace_back(w.text());
                    any = true;
                    break;
                }
            }
        }
        outcomes.push_back(any);
    }
    if (!codeItems.empty()) {
        bool any = false;
        for (const Code& code : u.codes()) {
            bool onWord = code.word >= 0;
            if ((onWord && c.codes == ExploreCodes::Utterance) ||
                (!onWord && c.codes == ExploreCodes::Word))
                continue;
            for (const std::string& item : codeItems) {
                if (codeMatchesItem(code.text, item) || exploreItemMatches(item, code.text)) {
                    if (onWord)
                        match.words.push_back(code.word);
                    match.items.push_back("[" + std::string(code.text) + "]");
                    any = true;
                    break;
                }
            }
        }
        outcomes.push_back(any);
    }
    bool result = true;
    if (!outcomes.empty())
        result = c.all ? std::all_of(outcomes.begin(), outcomes.end(), [](bool b) { return b; })
                       : std::any_of(outcomes.begin(), outcomes.end(), [](bool b) { return b; });
    if (c.negate)
        result = !result;
    if (!result || c.negate) {
        match.words.clear();
        match.items.clear();
    }
    std::sort(match.words.begin(), match.words.end());
    match.words.erase(std::unique(match.words.begin(), match.words.end()), match.words.end());
    return result;
}

} // namespace

std::vector<ExploreMatch> exploreAnalysis(const TranscriptAnalysis& analysis,
                                          const TranLines& lines, const ExploreCriteria& criteria,
                                          int* searched) {
    const SegmentedTranscript& t = analysis.check.segmented;
    const Selection& sel = analysis.result.selection;
    std::vector<int> candidates;
    for (int s = 0; s < 2; ++s) {
        if ((criteria.speaker == ExploreSpeaker::First && s != 0) ||
            (criteria.speaker == ExploreSpeaker::Second && s != 1))
            continue;
        for (int index : sel.speakers[static_cast<size_t>(s)].total) {
            bool inSet = static_cast<size_t>(index) < sel.analysisSetFlags.size() &&
                         sel.analysisSetFlags[static_cast<size_t>(index)];
            if ((criteria.utterances == ExploreUtterances::AnalysisSet && !inSet) ||
                (criteria.utterances == ExploreUtterances::NonAnalysisSet && inSet))
                continue;
            candidates.push_back(index);
        }
    }
    std::sort(candidates.begin(), candidates.end());
    if (searched)
        *searched = static_cast<int>(candidates.size());

    const std::vector<std::string> wordItems = criteria.wordItems();
    const std::vector<std::string> codeItems = criteria.codeItems();
    std::vector<ExploreMatch> matches;
    for (int index : candidates) {
        const Utterance& u = t.utterances[static_cast<size_t>(index)];
        ResponseType r = static_cast<size_t>(index) < sel.responses.size()
                             ? sel.responses[static_cast<size_t>(index)]
                             : ResponseType{};
        ExploreMatch match;
        if (!meets(u, r, criteria, wordItems, codeItems, match))
            continue;
        match.utterance = index;
        match.line = u.line;
        match.speaker = u.speakerGroup;
        auto at = std::lower_bound(lines.begin(), lines.end(), u.line,
                                   [](const tranLine& l, int n) { return l.line < n; });
        if (at != lines.end() && at->line == u.line) {
            match.text = at->text;
            match.wordEnds = wordEnds(match.text, u);
        }
        matches.push_back(std::move(match));
    }
    return matches;
}

ExploreResult exploreText(std::string_view text, const AnalysisContext& context,
                          const ExploreCriteria& criteria) {
    ExploreResult result;
    result.analysis = analyseText(text, context);
    const TranLines lines = splitTranscriptLines(text);
    result.matches = exploreAnalysis(result.analysis, lines, criteria, &result.searched);
    return result;
}

std::vector<ExploreItemTally> tallyExploreItems(const TranscriptAnalysis& analysis,
                                                const std::vector<ExploreMatch>& within,
                                                const ExploreCriteria& criteria) {
    const SegmentedTranscript& t = analysis.check.segmented;
    std::vector<ExploreItemTally> tallies;
    for (const std::string& item : criteria.items) {
        ExploreItemTally tally;
        tally.item = item;
        const bool code = item.size() >= 2 && item.front() == '[' && item.back() == ']';
        const std::string_view bare =
            code ? std::string_view(item).substr(1, item.size() - 2) : std::string_view(item);
        std::set<std::string> forms, roots;
        for (const ExploreMatch& m : within) {
            const Utterance& u = t.utterances[static_cast<size_t>(m.utterance)];
            int found = 0;
            if (code) {
                for (const Code& c : u.codes()) {
                    bool onWord = c.word >= 0;
                    if ((onWord && criteria.codes == ExploreCodes::Utterance) ||
                        (!onWord && criteria.codes == ExploreCodes::Word))
                        continue;
                    if (!codeMatchesItem(c.text, bare) && !exploreItemMatches(bare, c.text))
                        continue;
                    ++found;
                    forms.insert(toLowerAscii(c.text));
                    roots.insert(toLowerAscii(c.text.substr(0, c.text.find(':'))));
                }
            } else {
                for (const Word& w : u.words) {
                    if (!wordInArea(w, criteria.area) || !wordMatches(w, bare, criteria.roots))
                        continue;
                    ++found;
                    forms.insert(toLowerAscii(w.text()));
                    roots.insert(toLowerAscii(w.root()));
                }
            }
            if (found == 0)
                continue;
            tally.occurrences += found;
            ++tally.utterances;
            if (tally.firstLine == 0 || u.line < tally.firstLine)
                tally.firstLine = u.line;
        }
        tally.forms = static_cast<int>(forms.size());
        tally.words = static_cast<int>(roots.size());
        tallies.push_back(std::move(tally));
    }
    return tallies;
}

std::vector<std::string> exploreListLines(const std::vector<ExploreMatch>& matches) {
    std::vector<std::string> out;
    for (const ExploreMatch& m : matches) {
        out.push_back(std::to_string(m.line) + ": " + m.text);
        if (!m.items.empty()) {
            std::string found = "    found: ";
            for (size_t i = 0; i < m.items.size(); ++i)
                found += (i ? ", " : "") + m.items[i];
            out.push_back(found);
        }
    }
    return out;
}

} // namespace tavi
