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
    const auto& T = v.total;
    const int total = static_cast<int>(T.size());
    // Utterances by terminator, nonverbal and by intelligibility, in one walk.
    std::array<int, 6> terms{};
    std::array<int, 3> intel{};
    int nonverbal = 0, intelWords = 0, marks = 0;
    int withPause = 0, withOmission = 0, withRemark = 0, withQuotation = 0, withComment = 0;
    for (int i : T) {
        const Utterance& u = v.utt(i);
        const UtteranceFacts& f = v.facts(i);
        const auto term = static_cast<size_t>(u.terminator);
        if (term < terms.size())
            ++terms[term];
        ++intel[static_cast<size_t>(u.intelligibility)];
        nonverbal += u.nonverbal ? 1 : 0;
        intelWords += f.wordCount;
        marks += f.rareFacts(v.c.tables).unintelligibleMarks;
        withOmission += f.hasOmission(v.c.tables) ? 1 : 0;
        withQuotation += u.hasQuotation ? 1 : 0;
        withComment += u.hasComment ? 1 : 0;
        if (u.extras) {
            withPause += u.pauses().empty() ? 0 : 1;
            withRemark += u.parentheticals().empty() ? 0 : 1;
        }
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
    percentOf(m, Id::PctIntelWd, intelWords, intelWords + marks);

    m[Id::UtWPause] = Value::count(withPause);
    m[Id::UtWOmission] = Value::count(withOmission);
    m[Id::UtWParenthetical] = Value::count(withRemark);
    m[Id::UtWDialogue] = Value::count(withQuotation);
    m[Id::UtWComment] = Value::count(withComment);
}

void fillCodesAndErrors(const SpeakerView& v, SpeakerMeasures& m) {
    const auto& T = v.total;
    const int total = static_cast<int>(T.size());
    // One walk: the code facts of most utterances are the shared empty record.
    CodeTally err, fl, nm, cs;
    int omitWd = 0, omitBm = 0, omitCl = 0, errorWords = 0, words = 0;
    int wdCode = 0, utCode = 0, exclCode = 0, anyCode = 0;
    int utErr = 0, utFl = 0, utNm = 0, utCs = 0, utErrOrOmit = 0;
    for (int i : T) {
        const UtteranceFacts& f = v.facts(i);
        const RareFacts& rare = f.rareFacts(v.c.tables);
        omitWd += rare.omittedWords;
        omitBm += rare.omittedMorphemes;
        omitCl += rare.omittedClitics;
        words += f.wordCount;
        if (f.codes == 0) {
            utErrOrOmit += f.hasOmission(v.c.tables) ? 1 : 0;
            continue;
        }
        const CodeFacts& c = f.codeFacts(v.c.tables);
        for (auto [sum, part] : {std::pair{&err, &c.errors},
                                 {&fl, &c.fluency},
                                 {&nm, &c.nonmainstream},
                                 {&cs, &c.codeSwitch}}) {
            sum->onWords += part->onWords;
            sum->onUtterance += part->onUtterance;
        }
        errorWords += c.errorWords;
        ++anyCode;
        wdCode += c.wordCode ? 1 : 0;
        utCode += c.utteranceCode ? 1 : 0;
        exclCode += c.excludeCode ? 1 : 0;
        utErr += c.errors.total() > 0 ? 1 : 0;
        utFl += c.fluency.total() > 0 ? 1 : 0;
        utNm += c.nonmainstream.total() > 0 ? 1 : 0;
        utCs += c.codeSwitch.total() > 0 ? 1 : 0;
        utErrOrOmit += c.errors.total() > 0 || f.hasOmission(v.c.tables) ? 1 : 0;
    }
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
    const int asetNm =
        v.countIf(v.analysisSet, [&](int i) { return v.codes(i).nonmainstream.total() > 0; });
    m[Id::UttWithNMForms] = Value::count(asetNm);
    percentOf(m, Id::PctUtWNMForms, asetNm, aset);
    m[Id::PCUttWithNMForms] = m[Id::PctUtWNMForms];
}

namespace {

// Bit k: utterance `i` goes in utterance list k (the lists' order, PRIP to PINTR).
std::uint32_t utteranceListBits(const SpeakerView& v, int i) {
    static_assert(kUtteranceLists <= 32);
    constexpr int kFirstTerminatorList = 15; // PSTMT, then one list per terminator kind
    const Utterance& u = v.utt(i);
    const ResponseType& r = v.response(i);
    const UtteranceFacts& f = v.facts(i);
    std::uint32_t in = 0;
    auto put = [&](int k, bool yes) { in |= static_cast<std::uint32_t>(yes) << k; };
    put(0, r.question || r.prompt);                             // PRIP
    put(1, r.imitation);                                        // PIMIT
    put(2, !r.question && !r.prompt && !r.imitation);           // PSPON
    put(3, r.oneWord);                                          // PONEWD
    put(4, u.intelligibility != Intelligibility::Intelligible); // PUNI
    put(6, f.hasOmission(v.c.tables));                          // POMIT
    put(8, u.hasComment);                                       // PCOMMENT
    put(9, u.hasQuotation);                                     // PDIAL
    if (u.extras) {
        put(5, !u.pauses().empty());         // PPAUS
        put(7, !u.parentheticals().empty()); // PPAREN
        put(10, !u.codes().empty());         // PCODE
    }
    if (f.codes != 0) {
        const CodeFacts& c = f.codeFacts(v.c.tables);
        put(11, c.errors.total() > 0);        // PECODE
        put(12, c.fluency.total() > 0);       // PFLCODE
        put(13, c.nonmainstream.total() > 0); // PNMCODE
        put(14, c.codeSwitch.total() > 0);    // PCSCODE
    }
    const auto term = static_cast<int>(u.terminator); // PSTMT, PEXMK, PQUES, PPRMT, PABAN, PINTR
    if (term >= 0 && term < kUtteranceLists - kFirstTerminatorList)
        put(kFirstTerminatorList + term, true);
    return in;
}

} // namespace

// The lists are sized first, so that each is filled without growing.
void fillUtteranceLists(const SpeakerView& v, SpeakerMeasures& m) {
    std::vector<std::uint32_t> bits(v.total.size());
    std::array<size_t, kUtteranceLists> sizes{};
    for (size_t k = 0; k < v.total.size(); ++k) {
        bits[k] = utteranceListBits(v, v.total[k]);
        for (std::uint32_t in = bits[k]; in != 0; in &= in - 1)
            ++sizes[static_cast<size_t>(std::countr_zero(in))];
    }
    for (size_t list = 0; list < sizes.size(); ++list)
        m.utteranceLists[list].reserve(sizes[list]);
    for (size_t k = 0; k < v.total.size(); ++k)
        for (std::uint32_t in = bits[k]; in != 0; in &= in - 1)
            m.utteranceLists[static_cast<size_t>(std::countr_zero(in))].push_back(v.total[k]);
}

} // namespace tavi
