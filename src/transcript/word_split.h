// One word of an utterance split into root, bound prefixes, bound morphemes,
// clitics and root identification, with the word checks of the notation.
// Problems go to the sink, so the checker and segmentation share these rules.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "transcript/segmenter.h"
#include "transcript/transcript_store.h"
#include "transcript/utterance.h"

namespace tavi {

// Each function takes its text as code points (C = char32_t) or, when the line
// is all ASCII, as its bytes (C = char).

// Splits `text` (a word or joined linked word, without blanks) into `word`,
// whose views point into `bytes` when it holds the same word as UTF-8, else
// into `spare` (overwritten). False when nothing of it is a word (a lone "+").
// `notPlain`: the caller has found that isPlainWord(text) is false.
template <class C>
bool splitWord(std::basic_string_view<C> text, bool linked, WordDraft& word, ProblemSink* sink,
               std::string_view bytes, std::string& spare, bool notPlain = false);

// The checks of splitWord alone: the same problems are reported and nothing
// is kept (`scratch` and `spare` are only worked in, their contents unread).
template <class C>
void checkWord(std::basic_string_view<C> text, bool linked, WordDraft& scratch, std::string& spare,
               ProblemSink* sink, bool notPlain = false);

// Only the checks of splitWord, for a plain word without filling the record.
// True when the word is plain (only word characters, a letter or digit):
// such a word has no problem, and the full split can be skipped.
template <class C> bool isPlainWord(std::basic_string_view<C> text);

// The words of a parenthetical remark's inner text, flagged inParenthetical,
// kept in `store` and appended to `out`.
template <class C>
void splitRemarkWords(std::basic_string_view<C> inner, TranscriptStore& store,
                      std::vector<Word>& out);

// True for "X", "XX" and "XXX" in any case: an unintelligible mark. In the
// header, so that the segmenter's loop over plain words keeps it in line.
template <class C> inline bool isUnintelligibleMark(std::basic_string_view<C> root) {
    if (root.empty() || root.size() > 3)
        return false;
    for (C c : root)
        if (c != C('x') && c != C('X'))
            return false;
    return true;
}

} // namespace tavi
