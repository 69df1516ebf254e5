// The kind of a maze, judged from its words and the words that follow it:
// filled pause, repetition or revision, of a part word, a word or a phrase.
#pragma once

#include <string_view>

#include "analysis/word_lists.h"
#include "transcript/utterance.h"

namespace tavi {

enum class MazeKind {
    RevisionPartWord,
    RevisionWord,
    RevisionPhrase,
    RepetitionPartWord,
    RepetitionWord,
    RepetitionPhrase,
    FilledPauseSingle,
    FilledPauseMulti
};
inline constexpr int kMazeKinds = 8;

class GcDictionary;

using FilledPauseTest = WordTest;

// "um", "uh", "er", "erm", "ah", "eh", "hm", "hmm", "mm", "uhm", "em".
bool isDefaultFilledPause(std::string_view word);

// Rules, in order, with M the maze's words and N the main-body words after it:
// every word of M a filled pause: single or multi-word filled pause; one word
// that begins N's first word but is shorter: part-word repetition; M equal to
// the first words of N: word or phrase repetition; one part word ("ba*") or
// one word that is not a known word (when a dictionary is at hand): part-word
// revision; otherwise a word or phrase revision. Without a dictionary every
// word is a known word. Uses no heap memory for words of ordinary length.
MazeKind classifyMaze(const Utterance& u, int maze, const FilledPauseTest& isFilled,
                      const GcDictionary* dictionary);

} // namespace tavi
