// One word of an utterance split into root, bound prefixes, bound morphemes,
// clitics and root identification, with the word checks of the notation.
// Problems go to the sink, so the checker and segmentation share these rules.
#pragma once

#include <string_view>
#include <vector>

#include "transcript/segmenter.h"
#include "transcript/utterance.h"

namespace tavi {

// Splits `text` (a word or joined linked word, without blanks) into `word`.
// False when nothing of it is a word (a lone "+").
bool splitWord(std::u32string_view text, bool linked, Word& word, ProblemSink* sink);

// The words of a parenthetical remark's inner text, flagged inParenthetical.
std::vector<Word> splitRemarkWords(std::u32string_view inner);

// True for "X", "XX" and "XXX" in any case: an unintelligible mark.
bool isUnintelligibleMark(std::u32string_view root);

} // namespace tavi
