// Classifying mazes by comparing their words with the words after them.
#include "analysis/maze_kind.h"

#include <algorithm>
#include <array>
#include <string>
#include <vector>

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
                      const WordTest& isKnown) {
    std::vector<std::string> mazeWords, after;
    std::span<const int> indices = u.mazes()[maze].words;
    for (int i : indices)
        if (!u.words[i].omitted && !u.words[i].unintelligible)
            mazeWords.push_back(surfaceForm(u.words[i]));
    const int last = indices.empty() ? -1 : indices.back();
    // The comparisons below read no further than this many words after the maze.
    const size_t needed = std::max<size_t>(mazeWords.size(), 1);
    for (size_t i = static_cast<size_t>(last + 1); i < u.words.size() && after.size() < needed; ++i)
        if (u.words[i].isMainBodyWord())
            after.push_back(surfaceForm(u.words[i]));

    const bool single = mazeWords.size() <= 1;
    bool allFilled = !mazeWords.empty();
    for (const std::string& w : mazeWords)
        allFilled = allFilled && isFilled(w);
    if (allFilled)
        return single ? MazeKind::FilledPauseSingle : MazeKind::FilledPauseMulti;
    const bool partWord =
        mazeWords.size() == 1 && indices.size() == 1 && u.words[indices[0]].incomplete;
    if (mazeWords.size() == 1 && !after.empty() && after[0].size() > mazeWords[0].size() &&
        after[0].compare(0, mazeWords[0].size(), mazeWords[0]) == 0)
        return MazeKind::RepetitionPartWord;
    if (!mazeWords.empty() && mazeWords.size() <= after.size() &&
        std::equal(mazeWords.begin(), mazeWords.end(), after.begin()))
        return single ? MazeKind::RepetitionWord : MazeKind::RepetitionPhrase;
    if (partWord || (mazeWords.size() == 1 && isKnown && !isKnown(mazeWords[0])))
        return MazeKind::RevisionPartWord;
    return single ? MazeKind::RevisionWord : MazeKind::RevisionPhrase;
}

} // namespace tavi
