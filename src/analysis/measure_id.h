// Every single-value measure has one identifier: the name reports fetch it by
// and the column name of the rectangular data file. The list below is the one
// place those names are spelled; each carries the format it prints in.
#pragma once

#include <cstddef>
#include <optional>
#include <stdexcept>
#include <string_view>

namespace tavi {

// How a measure prints: whole count "%d", mean "%0.2f", percentage "%0.1f%%"
// (exactly 100 as "100%"), or a text (Brown's stage, age range, min:sec).
enum class MeasureFormat { Count, Mean, Percent, Text };

// X(enumerator, identifier, format). Identifiers that stand in several
// catalogue groups ("TotNumUt", "MLUw") appear once.
#define TAVI_MEASURES(X)                                                                           \
    X(TotNumUt, "TotNumUt", Count)                                                                 \
    X(TotASetUt, "TotASetUt", Count)                                                               \
    X(AllWords, "AllWords", Count)                                                                 \
    X(TimeMin, "TimeMin", Mean)                                                                    \
    X(PctIntelUt, "%IntelUt", Percent)                                                             \
    X(PctIntelWd, "%IntelWd", Percent)                                                             \
    X(NSS, "NSS", Count)                                                                           \
    X(ESS, "ESS", Count)                                                                           \
    X(PSS, "PSS", Count)                                                                           \
    X(ONQ, "ONQ", Count)                                                                           \
    X(ONC, "ONC", Count)                                                                           \
    X(MLUw, "MLUw", Mean)                                                                          \
    X(MLUm, "MLUm", Mean)                                                                          \
    X(PctUtWVerb, "%UtWVerb", Percent)                                                             \
    X(VPU, "VPU", Mean)                                                                            \
    X(PctUtWNMForms, "%UtWNMForms", Percent)                                                       \
    X(SI, "SI", Mean)                                                                              \
    X(NTW, "NTW", Count)                                                                           \
    X(NDW, "NDW", Count)                                                                           \
    X(MA_NTW, "MA_NTW", Count)                                                                     \
    X(MA_NDW, "MA_NDW", Mean)                                                                      \
    X(MA_TTR, "MA_TTR", Mean)                                                                      \
    X(MeanTurnUt, "MeanTurnUt", Mean)                                                              \
    X(MeanTurnWd, "MeanTurnWd", Mean)                                                              \
    X(PctRespQues, "%RespQues", Percent)                                                           \
    X(PctRespPrmpt, "%RespPrmpt", Percent)                                                         \
    X(PctUtWOverlap, "%UtWOverlap", Percent)                                                       \
    X(PctIntrOthSpk, "%IntrOthSpk", Percent)                                                       \
    X(WPM, "WPM", Mean)                                                                            \
    X(PctPauseTime, "%PauseTime", Percent)                                                         \
    X(PctMzWds, "%MzWds", Percent)                                                                 \
    X(PctAbanUt, "%AbanUt", Percent)                                                               \
    X(PctUtWFluencyCd, "%UtWFluencyCd", Percent)                                                   \
    X(PctUtWCSwitchCd, "%UtWCSwitchCd", Percent)                                                   \
    X(PctUtWErrors, "%UtWErrors", Percent)                                                         \
    X(PctWordErrors, "%WordErrors", Percent)                                                       \
    X(Statements, "Statements", Count)                                                             \
    X(Exclamations, "Exclamations", Count)                                                         \
    X(Questions, "Questions", Count)                                                               \
    X(IntPrmpts, "IntPrmpts", Count)                                                               \
    X(AbanUt, "AbanUt", Count)                                                                     \
    X(InterruptUt, "InterruptUt", Count)                                                           \
    X(TotVerbalUt, "TotVerbalUt", Count)                                                           \
    X(NonVerbalUt, "NonVerbalUt", Count)                                                           \
    X(UnintelUt, "UnintelUt", Count)                                                               \
    X(PartIntelUt, "PartIntelUt", Count)                                                           \
    X(RespToQues, "RespToQues", Count)                                                             \
    X(YNRespToQues, "YNRespToQues", Count)                                                         \
    X(RespToIntPrmpt, "RespToIntPrmpt", Count)                                                     \
    X(Imitations, "Imitations", Count)                                                             \
    X(OneWdUt, "OneWdUt", Count)                                                                   \
    X(UtWMaze, "UtWMaze", Count)                                                                   \
    X(UtWPause, "UtWPause", Count)                                                                 \
    X(UtWOmission, "UtWOmission", Count)                                                           \
    X(UtWOverlap, "UtWOverlap", Count)                                                             \
    X(UtWParenthetical, "UtWParenthetical", Count)                                                 \
    X(UtWDialogue, "UtWDialogue", Count)                                                           \
    X(UtWComment, "UtWComment", Count)                                                             \
    X(UttwWdCode, "UttwWdCode", Count)                                                             \
    X(UttwUtCode, "UttwUtCode", Count)                                                             \
    X(UttwExclCode, "UttwExclCode", Count)                                                         \
    X(BrownStg, "BrownStg", Text)                                                                  \
    X(ExpAgeRange, "ExpAgeRange", Text)                                                            \
    X(PCUttWithVerbs, "PCUttWithVerbs", Percent)                                                   \
    X(MeanVerbsPerUtt, "MeanVerbsPerUtt", Mean)                                                    \
    X(PCUttWithNMForms, "PCUttWithNMForms", Percent)                                               \
    X(UttWithNMForms, "UttWithNMForms", Count)                                                     \
    X(BoundMorphs, "BoundMorphs", Count)                                                           \
    X(BoundClitics, "BoundClitics", Count)                                                         \
    X(OmitWd, "OmitWd", Count)                                                                     \
    X(OmitBm, "OmitBm", Count)                                                                     \
    X(OmitCl, "OmitCl", Count)                                                                     \
    X(UtbyUL0, "UtbyUL0", Count)                                                                   \
    X(UtbyUL1, "UtbyUL1", Count)                                                                   \
    X(UtbyUL2, "UtbyUL2", Count)                                                                   \
    X(UtbyUL3, "UtbyUL3", Count)                                                                   \
    X(UtbyUL4, "UtbyUL4", Count)                                                                   \
    X(UtbyUL5, "UtbyUL5", Count)                                                                   \
    X(UtbyUL6, "UtbyUL6", Count)                                                                   \
    X(UtbyUL7, "UtbyUL7", Count)                                                                   \
    X(UtbyUL8, "UtbyUL8", Count)                                                                   \
    X(UtbyUL9, "UtbyUL9", Count)                                                                   \
    X(UtbyUL10, "UtbyUL10", Count)                                                                 \
    X(UtbyUL11, "UtbyUL11", Count)                                                                 \
    X(UtbyUL12, "UtbyUL12", Count)                                                                 \
    X(UtbyUL13, "UtbyUL13", Count)                                                                 \
    X(UtbyUL14, "UtbyUL14", Count)                                                                 \
    X(UtbyUL15, "UtbyUL15", Count)                                                                 \
    X(UtbyULTot, "UtbyULTot", Count)                                                               \
    X(TTR, "TTR", Mean)                                                                            \
    X(DiffBM, "DiffBM", Count)                                                                     \
    X(MedTurnUt, "MedTurnUt", Mean)                                                                \
    X(MedTurnWd, "MedTurnWd", Mean)                                                                \
    X(PctRespToQues, "%RespToQues", Percent)                                                       \
    X(OtherSpkQues, "OtherSpkQues", Count)                                                         \
    X(ReqClarRespToQues, "ReqClarRespToQues", Count)                                               \
    X(OthRespToQues, "OthRespToQues", Count)                                                       \
    X(PctRespToIntPrmpt, "%RespToIntPrmpt", Percent)                                               \
    X(OtherSpkIntPrmpt, "OtherSpkIntPrmpt", Count)                                                 \
    X(ExactImit, "ExactImit", Count)                                                               \
    X(ReducedImit, "ReducedImit", Count)                                                           \
    X(SponUt, "SponUt", Count)                                                                     \
    X(SponStmt, "SponStmt", Count)                                                                 \
    X(SponExcl, "SponExcl", Count)                                                                 \
    X(SponQues, "SponQues", Count)                                                                 \
    X(SponIntPrmpt, "SponIntPrmpt", Count)                                                         \
    X(SponAban, "SponAban", Count)                                                                 \
    X(SponInter, "SponInter", Count)                                                               \
    X(IntrOthSpk, "IntrOthSpk", Count)                                                             \
    X(PctWdsMention1st, "%WdsMention1st", Percent)                                                 \
    X(WdsMention1st, "WdsMention1st", Count)                                                       \
    X(TurnByTLUt1, "TurnByTLUt1", Count)                                                           \
    X(TurnByTLUt2, "TurnByTLUt2", Count)                                                           \
    X(TurnByTLUt3, "TurnByTLUt3", Count)                                                           \
    X(TurnByTLUt4, "TurnByTLUt4", Count)                                                           \
    X(TurnByTLUt5, "TurnByTLUt5", Count)                                                           \
    X(TurnByTLUt6, "TurnByTLUt6", Count)                                                           \
    X(TurnByTLUtTot, "TurnByTLUtTot", Count)                                                       \
    X(TurnByTLWd0, "TurnByTLWd0", Count)                                                           \
    X(TurnByTLWd1, "TurnByTLWd1", Count)                                                           \
    X(TurnByTLWd2, "TurnByTLWd2", Count)                                                           \
    X(TurnByTLWd3, "TurnByTLWd3", Count)                                                           \
    X(TurnByTLWd4, "TurnByTLWd4", Count)                                                           \
    X(TurnByTLWd5, "TurnByTLWd5", Count)                                                           \
    X(TurnByTLWd6, "TurnByTLWd6", Count)                                                           \
    X(TurnByTLWd7, "TurnByTLWd7", Count)                                                           \
    X(TurnByTLWd8, "TurnByTLWd8", Count)                                                           \
    X(TurnByTLWd9, "TurnByTLWd9", Count)                                                           \
    X(TurnByTLWd10, "TurnByTLWd10", Count)                                                         \
    X(TurnByTLWd11, "TurnByTLWd11", Count)                                                         \
    X(TurnByTLWd12, "TurnByTLWd12", Count)                                                         \
    X(TurnByTLWd13, "TurnByTLWd13", Count)                                                         \
    X(TurnByTLWd14, "TurnByTLWd14", Count)                                                         \
    X(TurnByTLWd15, "TurnByTLWd15", Count)                                                         \
    X(TurnByTLWdTot, "TurnByTLWdTot", Count)                                                       \
    X(TimeSec, "TimeSec", Count)                                                                   \
    X(TimeMinSec, "TimeMinSec", Text)                                                              \
    X(UtPerMin, "UtPerMin", Mean)                                                                  \
    X(AvgPauseWiUt, "AvgPauseWiUt", Mean)                                                          \
    X(AvgPauseBtUt, "AvgPauseBtUt", Mean)                                                          \
    X(PctAbanUtt, "%AbanUtt", Percent)                                                             \
    X(AbanUtt, "AbanUtt", Count)                                                                   \
    X(MzWds, "MzWds", Count)                                                                       \
    X(TotNumMz, "Tot#Mz", Count)                                                                   \
    X(AvgWdPerMz, "AvgWdPerMz", Mean)                                                              \
    X(AvgMzPerUt, "AvgMzPerUt", Mean)                                                              \
    X(PctUtWMaze, "%UtWMaze", Percent)                                                             \
    X(MazeComp, "MazeComp", Count)                                                                 \
    X(MzRevPartWd, "MzRevPartWd", Count)                                                           \
    X(MzRevWd, "MzRevWd", Count)                                                                   \
    X(MzRevPhr, "MzRevPhr", Count)                                                                 \
    X(MzRepPartWd, "MzRepPartWd", Count)                                                           \
    X(MzRepWd, "MzRepWd", Count)                                                                   \
    X(MzRepPhr, "MzRepPhr", Count)                                                                 \
    X(MzFPSingleWd, "MzFPSingleWd", Count)                                                         \
    X(MzFPMultWd, "MzFPMultWd", Count)                                                             \
    X(PctMazeComp, "%MazeComp", Percent)                                                           \
    X(PctUttwFC, "%UttwFC", Percent)                                                               \
    X(UttwFC, "UttwFC", Count)                                                                     \
    X(PctUttwCS, "%UttwCS", Percent)                                                               \
    X(UttwCS, "UttwCS", Count)                                                                     \
    X(QuesTot, "QuesTot", Count)                                                                   \
    X(QuesTyp, "QuesTyp", Count)                                                                   \
    X(NegTot, "NegTot", Count)                                                                     \
    X(NegTyp, "NegTyp", Count)                                                                     \
    X(ConjTot, "ConjTot", Count)                                                                   \
    X(ConjTyp, "ConjTyp", Count)                                                                   \
    X(CoreModalTot, "CoreModalTot", Count)                                                         \
    X(CoreModalTyp, "CoreModalTyp", Count)                                                         \
    X(MarModalTot, "MarModalTot", Count)                                                           \
    X(MarModalTyp, "MarModalTyp", Count)                                                           \
    X(PersPrnTot, "PersPrnTot", Count)                                                             \
    X(PersPrnTyp, "PersPrnTyp", Count)                                                             \
    X(PossPrnTot, "PossPrnTot", Count)                                                             \
    X(PossPrnTyp, "PossPrnTyp", Count)                                                             \
    X(ReflPrnTot, "ReflPrnTot", Count)                                                             \
    X(ReflPrnTyp, "ReflPrnTyp", Count)                                                             \
    X(DemoPrnTot, "DemoPrnTot", Count)                                                             \
    X(DemPrnTyp, "DemPrnTyp", Count)                                                               \
    X(RelPrnTot, "RelPrnTot", Count)                                                               \
    X(RelPrnTyp, "RelPrnTyp", Count)                                                               \
    X(UnivPrnTot, "UnivPrnTot", Count)                                                             \
    X(UnivPrnTyp, "UnivPrnTyp", Count)                                                             \
    X(PartPrnTot, "PartPrnTot", Count)                                                             \
    X(PartPrnTyp, "PartPrnTyp", Count)                                                             \
    X(QuanPrnTot, "QuanPrnTot", Count)                                                             \
    X(QuanPrnTyp, "QuanPrnTyp", Count)                                                             \
    X(Extra1Tot, "Extra1Tot", Count)                                                               \
    X(Extra1Typ, "Extra1Typ", Count)                                                               \
    X(Extra2Tot, "Extra2Tot", Count)                                                               \
    X(Extra2Typ, "Extra2Typ", Count)                                                               \
    X(Extra3Tot, "Extra3Tot", Count)                                                               \
    X(Extra3Typ, "Extra3Typ", Count)                                                               \
    X(Extra4Tot, "Extra4Tot", Count)                                                               \
    X(Extra4Typ, "Extra4Typ", Count)                                                               \
    X(Extra5Tot, "Extra5Tot", Count)                                                               \
    X(Extra5Typ, "Extra5Typ", Count)                                                               \
    X(YNTot, "YNTot", Count)                                                                       \
    X(YNTyp, "YNTyp", Count)                                                                       \
    X(FPTot, "FPTot", Count)                                                                       \
    X(FPTyp, "FPTyp", Count)                                                                       \
    X(PartOrAllUnintUt, "PartOrAllUnintUt", Count)                                                 \
    X(UtWCode, "UtWCode", Count)                                                                   \
    X(UtWErrCode, "UtWErrCode", Count)                                                             \
    X(UtWFLuencyCode, "UtWFLuencyCode", Count)                                                     \
    X(UtWNMFormCode, "UtWNMFormCode", Count)                                                       \
    X(UtWCSwitchCode, "UtWCSwitchCode", Count)                                                     \
    X(PctUtWMzByUL1, "%UtWMzByUL1", Percent)                                                       \
    X(PctUtWMzByUL2, "%UtWMzByUL2", Percent)                                                       \
    X(PctUtWMzByUL3, "%UtWMzByUL3", Percent)                                                       \
    X(PctUtWMzByUL4, "%UtWMzByUL4", Percent)                                                       \
    X(PctUtWMzByUL5, "%UtWMzByUL5", Percent)                                                       \
    X(PctUtWMzByUL6, "%UtWMzByUL6", Percent)                                                       \
    X(PctUtWMzByUL7, "%UtWMzByUL7", Percent)                                                       \
    X(PctUtWMzByUL8, "%UtWMzByUL8", Percent)                                                       \
    X(PctUtWMzByUL9, "%UtWMzByUL9", Percent)                                                       \
    X(PctUtWMzByUL10, "%UtWMzByUL10", Percent)                                                     \
    X(PctUtWMzByUL11, "%UtWMzByUL11", Percent)                                                     \
    X(PctUtWMzByUL12, "%UtWMzByUL12", Percent)                                                     \
    X(PctUtWMzByUL13, "%UtWMzByUL13", Percent)                                                     \
    X(PctUtWMzByUL14, "%UtWMzByUL14", Percent)                                                     \
    X(PctUtWMzByUL15, "%UtWMzByUL15", Percent)                                                     \
    X(PctUtWMzByULTot, "%UtWMzByULTot", Percent)                                                   \
    X(MzByUL1, "MzByUL1", Count)                                                                   \
    X(MzByUL2, "MzByUL2", Count)                                                                   \
    X(MzByUL3, "MzByUL3", Count)                                                                   \
    X(MzByUL4, "MzByUL4", Count)                                                                   \
    X(MzByUL5, "MzByUL5", Count)                                                                   \
    X(MzByUL6, "MzByUL6", Count)                                                                   \
    X(MzByUL7, "MzByUL7", Count)                                                                   \
    X(MzByUL8, "MzByUL8", Count)                                                                   \
    X(MzByUL9, "MzByUL9", Count)                                                                   \
    X(MzByUL10, "MzByUL10", Count)                                                                 \
    X(MzByUL11, "MzByUL11", Count)                                                                 \
    X(MzByUL12, "MzByUL12", Count)                                                                 \
    X(MzByUL13, "MzByUL13", Count)                                                                 \
    X(MzByUL14, "MzByUL14", Count)                                                                 \
    X(MzByUL15, "MzByUL15", Count)                                                                 \
    X(MzByULTot, "MzByULTot", Count)                                                               \
    X(MzByML1, "MzByML1", Count)                                                                   \
    X(MzByML2, "MzByML2", Count)                                                                   \
    X(MzByML3, "MzByML3", Count)                                                                   \
    X(MzByML4, "MzByML4", Count)                                                                   \
    X(MzByML5, "MzByML5", Count)                                                                   \
    X(MzByML6, "MzByML6", Count)                                                                   \
    X(MzByML7, "MzByML7", Count)                                                                   \
    X(MzByML8, "MzByML8", Count)                                                                   \
    X(MzByML9, "MzByML9", Count)                                                                   \
    X(MzByML10, "MzByML10", Count)                                                                 \
    X(MzByML11, "MzByML11", Count)                                                                 \
    X(MzByML12, "MzByML12", Count)                                                                 \
    X(MzByML13, "MzByML13", Count)                                                                 \
    X(MzByML14, "MzByML14", Count)                                                                 \
    X(MzByML15, "MzByML15", Count)                                                                 \
    X(MzByMLTot, "MzByMLTot", Count)                                                               \
    X(Omissions, "Omissions", Count)                                                               \
    X(ErrCodes, "ErrCodes", Count)                                                                 \
    X(ErrCodesWd, "ErrCodesWd", Count)                                                             \
    X(ErrCodesUt, "ErrCodesUt", Count)                                                             \
    X(FlCodesWd, "FlCodesWd", Count)                                                               \
    X(FlCodesUt, "FlCodesUt", Count)                                                               \
    X(NMFormCodes, "NMFormCodes", Count)                                                           \
    X(NMFormCodesWd, "NMFormCodesWd", Count)                                                       \
    X(NMFormCodesUt, "NMFormCodesUt", Count)                                                       \
    X(PctUtWCSwitch, "%UtWCSwitch", Percent)                                                       \
    X(CSwitchCodes, "CSwitchCodes", Count)                                                         \
    X(CSwitchCodesWd, "CSwitchCodesWd", Count)                                                     \
    X(CSwitchCodesUt, "CSwitchCodesUt", Count)                                                     \
    X(CQTotal, "CQ Total", Count)                                                                  \
    X(GC_InitTot, "GC_InitTot", Count)                                                             \
    X(GC_InitTyp, "GC_InitTyp", Count)                                                             \
    X(GC_DetTot, "GC_DetTot", Count)                                                               \
    X(GC_DetTyp, "GC_DetTyp", Count)                                                               \
    X(GC_AdjTot, "GC_AdjTot", Count)                                                               \
    X(GC_AdjTyp, "GC_AdjTyp", Count)                                                               \
    X(GC_NounTot, "GC_NounTot", Count)                                                             \
    X(GC_NounTyp, "GC_NounTyp", Count)                                                             \
    X(GC_PersPrnTot, "GC_PersPrnTot", Count)                                                       \
    X(GC_PersPrnTyp, "GC_PersPrnTyp", Count)                                                       \
    X(GC_OthrPrnTot, "GC_OthrPrnTot", Count)                                                       \
    X(GC_OthrPrnTyp, "GC_OthrPrnTyp", Count)                                                       \
    X(GC_AuxModTot, "GC_AuxModTot", Count)                                                         \
    X(GC_AuxModTyp, "GC_AuxModTyp", Count)                                                         \
    X(GC_AuxOpTot, "GC_AuxOpTot", Count)                                                           \
    X(GC_AuxOpTyp, "GC_AuxOpTyp", Count)                                                           \
    X(GC_VerbTot, "GC_VerbTot", Count)                                                             \
    X(GC_VerbTyp, "GC_VerbTyp", Count)                                                             \
    X(GC_CopulaTot, "GC_CopulaTot", Count)                                                         \
    X(GC_CopulaTyp, "GC_CopulaTyp", Count)                                                         \
    X(GC_VerbPartclTot, "GC_VerbPartclTot", Count)                                                 \
    X(GC_VerbPartclTyp, "GC_VerbPartclTyp", Count)                                                 \
    X(GC_AdvTot, "GC_AdvTot", Count)                                                               \
    X(GC_AdvTyp, "GC_AdvTyp", Count)                                                               \
    X(GC_IntenseTot, "GC_IntenseTot", Count)                                                       \
    X(GC_IntenseTyp, "GC_IntenseTyp", Count)                                                       \
    X(GC_PrepTot, "GC_PrepTot", Count)                                                             \
    X(GC_PrepTyp, "GC_PrepTyp", Count)                                                             \
    X(GC_ExistTot, "GC_ExistTot", Count)                                                           \
    X(GC_ExistTyp, "GC_ExistTyp", Count)                                                           \
    X(GC_QuesTot, "GC_QuesTot", Count)                                                             \
    X(GC_QuesTyp, "GC_QuesTyp", Count)                                                             \
    X(GC_CoordTot, "GC_CoordTot", Count)                                                           \
    X(GC_CoordTyp, "GC_CoordTyp", Count)                                                           \
    X(GC_SubTot, "GC_SubTot", Count)                                                               \
    X(GC_SubTyp, "GC_SubTyp", Count)                                                               \
    X(GC_InfTot, "GC_InfTot", Count)                                                               \
    X(GC_InfTyp, "GC_InfTyp", Count)                                                               \
    X(GC_PossTot, "GC_PossTot", Count)                                                             \
    X(GC_PossTyp, "GC_PossTyp", Count)                                                             \
    X(GC_NegTot, "GC_NegTot", Count)                                                               \
    X(GC_NegTyp, "GC_NegTyp", Count)                                                               \
    X(GC_LetTot, "GC_LetTot", Count)                                                               \
    X(GC_LetTyp, "GC_LetTyp", Count)                                                               \
    X(GC_IntjTot, "GC_IntjTot", Count)                                                             \
    X(GC_IntjTyp, "GC_IntjTyp", Count)                                                             \
    X(MLUwTot, "MLUwTot", Mean)                                                                    \
    X(MLUmTot, "MLUmTot", Mean)                                                                    \
    X(NumPauseWiUt, "NumPauseWiUt", Count)                                                         \
    X(NumPauseBtUt, "NumPauseBtUt", Count)                                                         \
    X(UntimedPauseWiUt, "UntimedPauseWiUt", Count)                                                 \
    X(UntimedPauseBtUt, "UntimedPauseBtUt", Count)                                                 \
    X(PauseTimeWiUt, "PauseTimeWiUt", Count)                                                       \
    X(PauseTimeBtUt, "PauseTimeBtUt", Count)

enum class MeasureId : int {
#define TAVI_MEASURE_ENUM(id, name, fmt) id,
    TAVI_MEASURES(TAVI_MEASURE_ENUM)
#undef TAVI_MEASURE_ENUM
};

struct MeasureInfo {
    std::string_view name;
    MeasureFormat format;
};

inline constexpr MeasureInfo kMeasureInfo[] = {
#define TAVI_MEASURE_INFO(id, name, fmt) {name, MeasureFormat::fmt},
    TAVI_MEASURES(TAVI_MEASURE_INFO)
#undef TAVI_MEASURE_INFO
};

inline constexpr std::size_t kMeasureCount = sizeof(kMeasureInfo) / sizeof(kMeasureInfo[0]);

constexpr std::string_view measureName(MeasureId id) {
    return kMeasureInfo[static_cast<int>(id)].name;
}
constexpr MeasureFormat measureFormat(MeasureId id) {
    return kMeasureInfo[static_cast<int>(id)].format;
}

// The identifier with this exact name (case-sensitive), if any.
std::optional<MeasureId> measureIdByName(std::string_view name);

// The identifier of a name the code itself spells (a table's column), found
// while compiling: a name not in the list fails the build.
constexpr MeasureId measureIdNamed(std::string_view name) {
    for (std::size_t i = 0; i < kMeasureCount; ++i)
        if (kMeasureInfo[i].name == name)
            return static_cast<MeasureId>(i);
    throw std::logic_error("no measure of this name");
}

// The identifier `n` places after `first`: the numbered families stand in
// the list in order ("MzByUL1" to "MzByUL15"), as isNumberedFamily checks.
constexpr MeasureId measureIdAfter(MeasureId first, int n) {
    return static_cast<MeasureId>(static_cast<int>(first) + n);
}

// Whether the identifiers from `first` on are named `prefix` followed by
// `from`, `from` + 1, ... `to`.
constexpr bool isNumberedFamily(MeasureId first, std::string_view prefix, int from, int to) {
    for (int n = from; n <= to; ++n) {
        const std::string_view name = measureName(measureIdAfter(first, n - from));
        if (!name.starts_with(prefix) || name.size() == prefix.size())
            return false;
        int value = 0;
        for (char c : name.substr(prefix.size())) {
            if (c < '0' || c > '9')
                return false;
            value = value * 10 + (c - '0');
        }
        if (value != n)
            return false;
    }
    return true;
}

} // namespace tavi
