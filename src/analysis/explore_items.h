// What the explore reports count: a word or code the user names, in the
// utterances of one speaker, and the value of a "+" header line.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "transcript/segmented_transcript.h"

namespace tavi {

// An item is a code when written in brackets ("[EW]"): it matches a code
// whose text is the same or starts with it and ":" ("[EW:went]"). Any other
// item is a word: it matches a main-body word whose root or surface form is
// the same, ignoring case ("dog" matches "Dog" and "dog/s"). A final "*"
// matches any ending ("go*": go, goes, going).
bool isCodeItem(std::string_view item);

// How often `item` occurs in the utterances `utterances` (indices into the
// transcript's utterances, e.g. a speaker's utterances inside the cut).
int countItem(const SegmentedTranscript& transcript, std::span<const int> utterances,
              std::string_view item);

// The items of an explore word list file ("*.LST"): words and codes on
// lines, separated by blanks or commas; a line starting with ";" is a note.
std::vector<std::string> wordListFileItems(std::string_view text);

// The number a "+" header line starts its value with ("+ Score: 12 of 20"
// gives 12), the keyword matched ignoring case; empty when the line is
// missing or its value does not start with a number.
std::optional<double> plusLineValue(const SegmentedTranscript& transcript,
                                    std::string_view keyword);

// The keywords of the transcript's "+" lines whose whole value is a number
// ("+ Score: 12"; not "+ CA: 7;1"), in line order, each once.
std::vector<std::string> numericPlusLines(const SegmentedTranscript& transcript);

} // namespace tavi
