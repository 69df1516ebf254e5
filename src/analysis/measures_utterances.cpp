// Utterance counts by kind, terminator and code, errors and omissions, and
// the standard utterance lists.
#include <array>
#include <bit>
#include <cstdint>

#include "analysis/measure_context.h"

namespace tavi {

namespace {

using Id = MeasureId;

void percentOf(SpeakerMeasures& m, Id id, int part, int whole) {
    m[id] = Value::ratio(part, whole, 100);
}

} // namespace

void fillUtteranceKinds(const SpeakerView& v, SpeakerMeasures& m) {
    const SpeakerTallies& s = v.tally();
    const int total = static_cast<int>(v.total.size());
    const auto& terms = s.terms;
    const auto& intel = s.intel;
    const int nonverbal = s.nonverbal, intelWords = s.words, marks = s.marks;
    auto byTerm = [&](Terminator t) { return terms[static_cast<size_t>(t)]; };
    m[Id::TotNumUt] = Value::count(total);
    m[Id::TotASetUt] = Value::count(static_cast<int>(v.analysisSet.size()));
    m[Id::Statements] = Value::count(byTerm(Terminator::Statement));
    m[Id::Exclamations] = Value::count(byTerm(Terminator::Exclamation));
    m[Id::Questions] = Value::count(byTerm(Terminator::Question));
    m[Id::IntPrmpts] = Value::count(byTerm(Terminator::Prompt));
    const int aban = byTerm(Terminator::Abandoned);
    m[Id::AbanUt] = m[Id::AbanUtt] = Value::count(aban);
    percentOf(m, Id::PctAbanUt, aban, total);
    m[Id::PctAbanUtt] = m[Id::PctAbanUt];
    m[Id::InterruptUt] = Value::count(byTerm(Terminator::Interrupted));

    const int unintel = intel[static_cast<size_t>(Intelligibility::Unintelligible)];
    const int partly = intel[static_cast<size_t>(Intelligibility::Partly)];
    m[Id::NonVerbalUt] = Value::count(nonverbal);
    m[Id::TotVerbalUt] = Value::count(total - nonverbal);
    m[Id::UnintelUt] = Value::count(unintel);
    m[Id::PartIntelUt] = Value::count(partly);
    m[Id::PartOrAllUnintUt] = Value::count(unintel + partly);
    percentOf(m, Id::PctIntelUt, total - nonverbal - unintel - partly, total - nonverbal);
    percentOf(m, Id::PctIntelWd, intelWords, intelWords + marks);

    m[Id::UtWPause] = Value::count(s.withPause);
    m[Id::UtWOmission] = Value::count(s.withOmission);
    m[Id::UtWParenthetical] = Value::count(s.withRemark);
    m[Id::UtWDialogue] = Value::count(s.withQuotation);
    m[Id::UtWComment] = Value::count(s.withComment);
}

void fillCodesAndErrors(const SpeakerView& v, SpeakerMeasures& m) {
    const SpeakerTallies& s = v.tally();
    const int total = static_cast<int>(v.total.size());
    const CodeTally &err = s.errors, &nm = s.nonmainstream, &cs = s.codeSwitch, &fl = s.fluency;
    const int omitWd = s.omittedWords, omitBm = s.omittedMorphemes, omitCl = s.omittedClitics;
    const int errorWords = s.errorWords, words = s.words;
    const int wdCode = s.withWordCode, utCode = s.withUtteranceCode, exclCode = s.withExcludeCode;
    const int anyCode = s.withCode, utErr = s.withError, utFl = s.withFluency;
    const int utNm = s.withNonmainstream, utCs = s.withCodeSwitch;
    const int utErrOrOmit = s.withErrorOrOmission;
    m[Id::UttwWdCode] = Value::count(wdCode);
    m[Id::UttwUtCode] = Value::count(utCode);
    m[Id::UttwExclCode] = Value::count(exclCode);
    m[Id::UtWCode] = Value::count(anyCode);

    m[Id::UtWErrCode] = Value::count(utErr);
    m[Id::UtWFLuencyCode] = m[Id::UttwFC] = Value::count(utFl);
    m[Id::UtWNMFormCode] = Value::count(utNm);
    m[Id::UtWCSwitchCode] = m[Id::UttwCS] = Value::count(utCs);
    percentOf(m, Id::PctUtWFluencyCd, utFl, total);
    m[Id::PctUttwFC] = m[Id::PctUtWFluencyCd];
    percentOf(m, Id::PctUtWCSwitchCd, utCs, total);
    m[Id::PctUttwCS] = m[Id::PctUtWCSwitch] = m[Id::PctUtWCSwitchCd];

    m[Id::OmitWd] = Value::count(omitWd);
    m[Id::OmitBm] = Value::count(omitBm);
    m[Id::OmitCl] = Value::count(omitCl);
    m[Id::Omissions] = Value::count(omitWd + omitBm + omitCl);
    percentOf(m, Id::PctUtWErrors, utErrOrOmit, total);
    percentOf(m, Id::PctWordErrors, errorWords + omitWd, words + omitWd);
    auto tallies = [&](const CodeTally& t, Id all, Id wd, Id ut) {
        m[all] = Value::count(t.total());
        m[wd] = Value::count(t.onWords);
        m[ut] = Value::count(t.onUtterance);
    };
    tallies(err, Id::ErrCodes, Id::ErrCodesWd, Id::ErrCodesUt);
    m[Id::FlCodesWd] = Value::count(fl.onWords);
    m[Id::FlCodesUt] = Value::count(fl.onUtterance);
    tallies(nm, Id::NMFormCodes, Id::NMFormCodesWd, Id::NMFormCodesUt);
    tallies(cs, Id::CSwitchCodes, Id::CSwitchCodesWd, Id::CSwitchCodesUt);

    // Nonmainstream forms are a syntax measure: over analysis-set utterances.
    const int aset = static_cast<int>(v.analysisSet.size());
    const int asetNm = s.setWithNonmainstream;
    m[Id::UttWithNMForms] = Value::count(asetNm);
    percentOf(m, Id::PctUtWNMForms, asetNm, aset);
    m[Id::PCUttWithNMForms] = m[Id::PctUtWNMForms];
}

// The lists are sized first (by the walk), so that each is filled without growing.
void fillUtteranceLists(const SpeakerView& v, SpeakerMeasures& m) {
    const std::array<int, kUtteranceLists>& sizes = v.tally().listSizes;
    for (size_t list = 0; list < sizes.size(); ++list)
        m.utteranceLists[list].reserve(static_cast<size_t>(sizes[list]));
    for (int i : v.total)
        for (std::uint32_t in = v.facts(i).listBits(); in != 0; in &= in - 1)
            m.utteranceLists[static_cast<size_t>(std::countr_zero(in))].push_back(i);
}

} // namespace tavi
