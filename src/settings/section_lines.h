// The settings sections that several front ends write: the analysis set, the
// word base, the transcript cut and the language options, turned into their
// lines (in the dialog's fixed order) and read back from them. The desktop
// program's dialogs and `tavi` share these, so a file written by one is read
// the same way by the other.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "analysis/analysis_set.h"
#include "analysis/transcript_cut.h"
#include "analysis/word_base.h"
#include "settings/keyword_file.h"
#include "settings/settings.h"

namespace tavi {

// "ASET" lines as saved: "ASET INCLUDEINC", "ASET INCLUDEUNINT", "ASET INCLUDENONV"
// for the included kinds, then "ASET EXCLUDEIMIT", "ASET EXCLUDEQUES",
// "ASET EXCLUDEYESNO", "ASET EXCLUDEPROMPT", "ASET EXCLUDEONEWD", "ASET INCLUDEONLY"
// for the ticked boxes, then "ASET EXCLUDECODE " and "ASET INCLUDECODE " with
// their non-empty lists. A set with every default is the single line "ASET".
std::vector<std::string> analysisSetLines(const AnalysisSet& set);
// Applies one "ASET" line as the loader reads it: "INCLUDEINC", "INCLUDEUNINT",
// "INCLUDENONV", "EXCLUDEIMIT", "EXCLUDEQUES", "EXCLUDEYESNO", "EXCLUDEPROMPT",
// "EXCLUDEONEWD", "INCLUDEUTTS", "EXCLUDEUCODE" and "INCLUDEUCODE". The written
// words "INCLUDEONLY", "EXCLUDECODE" and "INCLUDECODE" are deliberately not
// read, so those three defaults do not come back at start-up.
void applyAnalysisSetLine(const KeywordLine& line, AnalysisSet& set);

// "WBASE EXCLPAREN_YES"/"_NO", "WBASE EXCLWORDS"/"INCLWORDS", then
// "WBASE EXCLUDEWCODE " and "WBASE INCLUDEWCODE " with their non-empty lists.
std::vector<std::string> wordBaseLines(const WordBase& base);
void applyWordBaseLine(const KeywordLine& line, WordBase& base);

// "TCUT FROMTYPE n" ... "TCUT TOWAREA n", one line per field, in the order
// FROMTYPE, FROMUTT, FROMUBASE, FROMSPK, FROMTLINE, FROMCODE, TOTYPE, TOUTTWD,
// TOUBASE, TOSPK, TOTLINE, TOETIME, TOCODE, TOWAREA. Times are seconds.
std::vector<std::string> transcriptCutLines(const TranscriptCut& cut);
void applyTranscriptCutLine(const KeywordLine& line, TranscriptCut& cut);

// "LANGUAGE" lines: per slot the "UC", "ANSI", "UGC", "UW1".."UW4", "VL1".."VL4"
// flags ("UCPRIMARY_YES") and "RIF1PRIMARY file" entries, then "OTHERNAME",
// "DATEMD"/"DATEDM", "DATESEP", "RLABELS", "PLABELS".
std::vector<std::string> languageLines(const LanguageSettings& language);
void applyLanguageLine(const KeywordLine& line, LanguageSettings& language);

// "TIMINGLINES SUBTRACT_YES" ... for the three flags.
std::vector<std::string> timingLineLines(const TimingLineFlags& flags);
void applyTimingLineLine(const KeywordLine& line, TimingLineFlags& flags);

// A numbered list ("CURINSCODELIST", "CURINSTEXT" ...): "<keyword> REMOVEALL",
// then "<keyword> n text" for every entry with text, in number order; read
// back with applyNumberedValue.
std::vector<std::string> numberedListLines(std::string_view keyword,
                                           const std::map<int, std::string>& list);
// A plain list ("CURSYMBOLLIST"): "<keyword> REMOVEALL", then one line per
// non-empty entry; read back with applyListValue.
std::vector<std::string> listLines(std::string_view keyword, const std::vector<std::string>& list);

// "SICODESET SPEAKER 1" or "SICODESET SPEAKER 2": the speaker Insert SI Codes
// codes (0 the 1st, 1 the 2nd); another number leaves it unchanged.
std::vector<std::string> siCodeSetLines(int speaker);
void applySiCodeSetLine(const KeywordLine& line, int& speaker);

// The default database: "DEFDBNAME name", "DEFDBPATH folder" (each only when
// not empty) and "PCSD INCLUDE_YES"/"_NO".
std::vector<std::string> defaultDatabaseLines(const std::string& name, const std::string& path,
                                              bool pcsdInclude);

// Font lines "<keyword> HEIGHT n" ... "<keyword> FACENAME name".
std::vector<std::string> fontLines(std::string_view keyword, const FontSetting& font);
void applyFontLine(const KeywordLine& line, FontSetting& font);

} // namespace tavi
