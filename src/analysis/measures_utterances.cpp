// Utterance counts by kind, terminator and code, errors and omissions, and
// the standard utterance lists.
#include <array>

#include "analysis/measure_context.h"

namespace tavi {

namespace {

using Id = MeasureId;

void percentOf(SpeakerMeasures& m, Id id, int part, int whole) {
    m[id] = Value::ratio(part, whole, 100);
}

} // namespace

void fillUtteranceKinds(const SpeakerView& v, SpeakerMeasures& m) {
    const auto& T = v.total;
    const int total = static_cast<int>(T.size());
    // Utterances by terminator, nonverbal and by intelligibility, in one walk.
    std::array<int, 6> terms{};
    std::array<int, 3> intel{};
    int nonverbal = 0;
    for (int i : T) {
        const Utterance& u = v.utt(i);
        const auto term = static_cast<size_t>(u.terminator);
        if (term < terms.size())
            ++terms[term];
        ++intel[static_cast<size_t>(u.intelligibility)];
        nonverbal += u.nonverbal ? 1 : 0;
    }
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
    int intelWords = 0, marks = 0;
    for (int i : T) {
        intelWords += v.facts(i).wordCount;
        marks += v.facts(i).unintelligibleMarks;
    }
    percentOf(m, Id::PctIntelWd, intelWords, intelWords + marks);

    auto has = [&](auto pred) { return Value::count(v.countIf(T, pred)); };
    m[Id::UtWPause] = has([&](int i) { return !v.utt(i).pauses().empty(); });
    m[Id::UtWOmission] = has([&](int i) { return v.facts(i).hasOmission(); });
    m[Id::UtWParenthetical] = has([&](int i) { return !v.utt(i).parentheticals().empty(); });
    m[Id::UtWDialogue] = has([&](int i) { return v.utt(i).hasQuotation; });
    m[Id::UtWComment] = has([&](int i) { return v.utt(i).hasComment; });
}

void fillCodesAndErrors(const SpeakerView& v, SpeakerMeasures& m) {
    const auto& T = v.total;
    const int total = static_cast<int>(T.size());
    auto has = [&](auto pred) { return v.countIf(T, pred); };
    m[Id::UttwWdCode] = Value::count(has([&](int i) { return v.codes(i).wordCode; }));
    m[Id::UttwUtCode] = Value::count(has([&](int i) { return v.codes(i).utteranceCode; }));
    m[Id::UttwExclCode] = Value::count(has([&](int i) { return v.codes(i).excludeCode; }));
    m[Id::UtWCode] = Value::count(has([&](int i) { return !v.utt(i).codes().empty(); }));

    CodeTally err, fl, nm, cs;
    int omitWd = 0, omitBm = 0, omitCl = 0, errorWords = 0, words = 0;
    for (int i : T) {
        const UtteranceFacts& f = v.facts(i);
        const CodeFacts& c = v.codes(i);
        for (auto [sum, part] : {std::pair{&err, &c.errors},
                                 {&fl, &c.fluency},
                                 {&nm, &c.nonmainstream},
                                 {&cs, &c.codeSwitch}}) {
            sum->onWords += part->onWords;
            sum->onUtterance += part->onUtterance;
        }
        omitWd += f.omittedWords;
        omitBm += f.omittedMorphemes;
        omitCl += f.omittedClitics;
        errorWords += c.errorWords;
        words += f.wordCount;
    }
    const int utErr = has([&](int i) { return v.codes(i).errors.total() > 0; });
    const int utFl = has([&](int i) { return v.codes(i).fluency.total() > 0; });
    const int utNm = has([&](int i) { return v.codes(i).nonmainstream.total() > 0; });
    const int utCs = has([&](int i) { return v.codes(i).codeSwitch.total() > 0; });
    const int utErrOrOmit =
        has([&](int i) { return v.codes(i).errors.total() > 0 || v.facts(i).hasOmission(); });

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
    const int asetNm =
        v.countIf(v.analysisSet, [&](int i) { return v.codes(i).nonmainstream.total() > 0; });
    m[Id::UttWithNMForms] = Value::count(asetNm);
    percentOf(m, Id::PctUtWNMForms, asetNm, aset);
    m[Id::PCUttWithNMForms] = m[Id::PctUtWNMForms];
}

void fillUtteranceLists(const SpeakerView& v, SpeakerMeasures& m) {
    for (int i : v.total) {
        const Utterance& u = v.utt(i);
        const ResponseType& r = v.response(i);
        const UtteranceFacts& f = v.facts(i);
        const CodeFacts& c = v.codes(i);
        const bool in[kUtteranceLists] = {r.question || r.prompt,                   // PRIP
                                          r.imitation,                              // PIMIT
                                          !r.question && !r.prompt && !r.imitation, // PSPON
                                          r.oneWord,                                // PONEWD
                                          u.intelligibility !=
                                              Intelligibility::Intelligible,        // PUNI
                                          !u.pauses().empty(),                      // PPAUS
                                          f.hasOmission(),                          // POMIT
                                          !u.parentheticals().empty(),              // PPAREN
                                          u.hasComment,                             // PCOMMENT
                                          u.hasQuotation,                           // PDIAL
                                          !u.codes().empty(),                       // PCODE
                                          c.errors.total() > 0,                     // PECODE
                                          c.fluency.total() > 0,                    // PFLCODE
                                          c.nonmainstream.total() > 0,              // PNMCODE
                                          c.codeSwitch.total() > 0,                 // PCSCODE
                                          u.terminator == Terminator::Statement,    // PSTMT
                                          u.terminator == Terminator::Exclamation,  // PEXMK
                                          u.terminator == Terminator::Question,     // PQUES
                                          u.terminator == Terminator::Prompt,       // PPRMT
                                          u.terminator == Terminator::Abandoned,    // PABAN
                                          u.terminator == Terminator::Interrupted}; // PINTR
        for (int k = 0; k < kUtteranceLists; ++k)
            if (in[k])
                m.utteranceLists[k].push_back(i);
    }
}

} // namespace tavi
