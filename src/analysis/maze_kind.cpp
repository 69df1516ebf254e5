// Classifying mazes by comparing their words with the words after them.
#include "analysis/maze_kind.h"

#include <algorithm>
#include <array>
#include <optional>
#include <span>

#include "analysis/gc_dictionary.h"
#include "analysis/word_forms.h"

namespace tavi {

bool isDefaultFilledPause(std::string_view w) {
    static constexpr std::array<std::string_view, 11> kWords = {
        "um", "uh", "er", "erm", "ah", "eh", "hm", "hmm", "mm", "uhm", "em"};
    for (std::string_view f : kWords)
        if (w == f)
            return true;
    return false;
}

MazeKind classifyMaze(const Utterance& u, int maze, const FilledPauseTest& isFilled,
                      const GcDictionary* dictionary) {
    const std::span<const int> indices = u.mazes()[maze].words;
    auto counts = [&](int i) { return !u.words[i].omitted && !u.words[i].unintelligible; };
    const size_t mazeWords =
        static_cast<size_t>(std::count_if(indices.begin(), indices.end(), counts));
    const bool single = mazeWords <= 1;
    if (mazeWords == 0)
        return single ? MazeKind::RevisionWord : MazeKind::RevisionPhrase;

    // Every word a filled pause; the first word's form is kept for the tests below.
    std::optional<InlineForm> first;
    bool allFilled = true;
    for (int i : indices) {
        if (!counts(i))
            continue;
        InlineForm form = InlineForm::surface(u.words[i]);
        allFilled = isFilled(form.view());
        if (!first)
            first.emplace(std::move(form));
        if (!allFilled)
            break;
    }
    if (allFilled)
        return single ? MazeKind::FilledPauseSingle : MazeKind::FilledPauseMulti;

    // The main-body words after the maze, read no further than needed.
    const size_t last = static_cast<size_t>(indices.back());
    size_t next = last + 1;
    auto nextAfter = [&]() -> const Word* {
        for (; next < u.words.size(); ++next)
            if (u.words[next].isMainBodyWord())
                return &u.words[next++];
        return nullptr;
    };
    const std::string_view m0 = first->view();
    const Word* a0 = nextAfter();
    if (a0 && single) {
        const InlineForm after = InlineForm::surface(*a0);
        const std::string_view a = after.view();
        if (a.size() > m0.size() && a.starts_with(m0))
            return MazeKind::RepetitionPartWord;
        if (a == m0)
            return MazeKind::RepetitionWord;
    } else if (a0) {
        bool same = InlineForm::surface(*a0).view() == m0;
        size_t k = 0; // maze words compared so far, after the first
        for (int i : indices) {
            if (!same)
                break;
            if (!counts(i) || k++ == 0)
                continue;
            const Word* a = nextAfter();
            same = a && InlineForm::surface(*a).view() == InlineForm::surface(u.words[i]).view();
        }
        if (same)
            return MazeKind::RepetitionPhrase;
    }
    const bool partWord = single && indices.size() == 1 && u.words[indices[0]].incomplete;
    if (partWord || (single && dictionary && !dictionary->lookup(m0).has_value()))
        return MazeKind::RevisionPartWord;
    return single ? MazeKind::RevisionWord : MazeKind::RevisionPhrase;
}

} // namespace tavi
