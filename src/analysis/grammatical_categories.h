// The 23 grammatical categories: labels, dictionary codes and batch columns.
#pragma once

#include <array>
#include <optional>
#include <string_view>

namespace tavi {

struct GrammaticalCategory {
    std::string_view label;
    std::string_view code; // as written in the dictionary, "[GC:NOUN]"
    std::string_view totalColumn;
    std::string_view typesColumn;
};

inline constexpr std::array<GrammaticalCategory, 23> kGrammaticalCategoryTable = {{
    {"Initiators", "[GC:INIT]", "GC_InitTot", "GC_InitTyp"},
    {"Determiners", "[GC:DET]", "GC_DetTot", "GC_DetTyp"},
    {"Adjectives", "[GC:ADJ]", "GC_AdjTot", "GC_AdjTyp"},
    {"Nouns", "[GC:NOUN]", "GC_NounTot", "GC_NounTyp"},
    {"Personal Pronouns", "[GC:PPRON]", "GC_PersPrnTot", "GC_PersPrnTyp"},
    {"Other Pronouns", "[GC:OPRON]", "GC_OthrPrnTot", "GC_OthrPrnTyp"},
    {"Auxiliary Modals", "[GC:AXMOD]", "GC_AuxModTot", "GC_AuxModTyp"},
    {"Auxiliary Operators", "[GC:AXOP]", "GC_AuxOpTot", "GC_AuxOpTyp"},
    {"Verbs", "[GC:VERB]", "GC_VerbTot", "GC_VerbTyp"},
    {"Copula Forms", "[GC:COP]", "GC_CopulaTot", "GC_CopulaTyp"},
    {"Verb Particles", "[GC:VPART]", "GC_VerbPartclTot", "GC_VerbPartclTyp"},
    {"Adverbs", "[GC:AVERB]", "GC_AdvTot", "GC_AdvTyp"},
    {"Intensifiers", "[GC:INTEN]", "GC_IntenseTot", "GC_IntenseTyp"},
    {"Prepositions", "[GC:PREP]", "GC_PrepTot", "GC_PrepTyp"},
    {"Existential", "[GC:EXIST]", "GC_ExistTot", "GC_ExistTyp"},
    {"Question Words", "[GC:QUES]", "GC_QuesTot", "GC_QuesTyp"},
    {"Coordinators", "[GC:COORD]", "GC_CoordTot", "GC_CoordTyp"},
    {"Subordinators", "[GC:SUB]", "GC_SubTot", "GC_SubTyp"},
    {"Infinitives", "[GC:INFIN]", "GC_InfTot", "GC_InfTyp"},
    {"Possessives", "[GC:POSS]", "GC_PossTot", "GC_PossTyp"},
    {"Negation Words", "[GC:NEG]", "GC_NegTot", "GC_NegTyp"},
    {"Lets Words", "[GC:LET]", "GC_LetTot", "GC_LetTyp"},
    {"Interjections", "[GC:INTJ]", "GC_IntjTot", "GC_IntjTyp"},
}};

enum GcIndex : int {
    GcInit,
    GcDet,
    GcAdj,
    GcNoun,
    GcPPron,
    GcOPron,
    GcAxMod,
    GcAxOp,
    GcVerb,
    GcCop,
    GcVPart,
    GcAverb,
    GcInten,
    GcPrep,
    GcExist,
    GcQues,
    GcCoord,
    GcSub,
    GcInfin,
    GcPoss,
    GcNeg,
    GcLet,
    GcIntj
};

// The category of a code, "[GC:NOUN]" or "GC:NOUN" or "NOUN" (case-insensitive).
std::optional<int> categoryOfCode(std::string_view code);

} // namespace tavi
