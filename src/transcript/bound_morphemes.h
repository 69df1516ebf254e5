// The ten bound-morpheme groups (used for counting morphemes and by the
// bound-morpheme reports) and the contraction forms of the bound-morpheme
// generation tool, as data.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace tavi {

struct BoundMorphemeGroup {
    std::string_view endings;     // comma-separated, e.g. "/N'T,/'T"; empty for the last row
    std::string_view description; // e.g. "plural bound morpheme"
};

inline constexpr std::array<BoundMorphemeGroup, 10> kBoundMorphemeGroups = {{
    {"/S", "plural bound morpheme"},
    {"/Z", "possessive bound morpheme"},
    {"/ED", "regular past tense bound morpheme"},
    {"/EN", "regular past participle bound morpheme"},
    {"/3S", "3rd person singular bound morpheme"},
    {"/ING", "present progressive bound morpheme"},
    {"/N'T,/'T", "contracted negative bound morpheme"},
    {"/'LL,/'M,/'D,/'RE,/'S,/'VE,/H'S,/H'D,/D'S,/D'D", "contracted verb form bound morpheme"},
    {"/'US", "contracted 'us' bound morpheme"},
    {"", "other bound morpheme"},
}};

// Row (0..9) of an ending, given with or without its "/" ("s", "/S", "n't"),
// compared without regard to case; endings that match none of the first nine
// rows fall in row 9.
int boundMorphemeGroup(std::string_view ending);

// The contraction forms: "@n't" -> "/n't" and so on.
struct ContractionForm {
    std::string_view at;    // "@n't"
    std::string_view bound; // "/n't"
};
inline constexpr std::array<ContractionForm, 8> kContractionForms = {{
    {"@n't", "/n't"},
    {"@'ll", "/'ll"},
    {"@'ve", "/'ve"},
    {"@'re", "/'re"},
    {"@has", "/h's"},
    {"@had", "/h'd"},
    {"@does", "/d's"},
    {"@did", "/d'd"},
}};

// "let's" is written "let@'s", "let@us" or "let/'us".
inline constexpr std::array<std::string_view, 3> kLetUsForms = {"let@'s", "let@us", "let/'us"};

// Whole negative contractions and their expanded forms ("musn't" is accepted
// beside "mustn't" on purpose).
struct NegativeContraction {
    std::string_view word;     // "don't"
    std::string_view expanded; // "do@n't"
};
inline constexpr std::array<NegativeContraction, 20> kNegativeContractions = {{
    {"don't", "do@n't"},       {"won't", "will@n't"},       {"ain't", "is@n't"},
    {"aren't", "are@n't"},     {"can't", "can@n't"},        {"couldn't", "could@n't"},
    {"didn't", "did@n't"},     {"doesn't", "does@n't"},     {"hadn't", "had@n't"},
    {"hasn't", "has@n't"},     {"haven't", "have@n't"},     {"isn't", "is@n't"},
    {"mightn't", "might@n't"}, {"musn't", "must@n't"},      {"mustn't", "must@n't"},
    {"shan't", "shall@n't"},   {"shouldn't", "should@n't"}, {"wasn't", "was@n't"},
    {"weren't", "were@n't"},   {"wouldn't", "would@n't"},
}};

// The expanded form of a whole negative contraction (compared without regard
// to case), e.g. "can't" -> "can@n't".
std::optional<std::string_view> expandNegativeContraction(std::string_view word);

// Rewrites a word in "@" form into bound-morpheme notation: the "@" form of the
// table that ends the word is replaced by its bound form ("do@n't" -> "do/n't",
// "let@us" -> "let/'us"). Empty when the word holds no known "@" form.
std::optional<std::string> contractionToBoundForm(std::string_view word);

} // namespace tavi
