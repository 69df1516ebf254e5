// `tavi si suggest`: Subordination Index codes suggested from the verbs of
// each utterance, written into a copy of the transcript for review.
#include <filesystem>
#include <ostream>
#include <string>

#include "analysis/gc_dictionary.h"
#include "analysis/si_suggest.h"
#include "base/file_io.h"
#include "base/text.h"
#include "cli/args.h"
#include "cli/cli_settings.h"
#include "cli/command.h"
#include "cli/stream_prompter.h"
#include "session/analysis_session.h"

namespace {

using namespace tavi;

int run(cli::CommandContext& ctx) {
    cli::Args args(ctx.args, {"-o", "--speaker"}, {});
    if (!args.ok() || args.positional().size() != 2 || args.positional()[0] != "suggest") {
        ctx.err << "tavi si: "
                << (args.ok() ? "usage: tavi si suggest FILE [-o OUT.tvi]" : args.error()) << '\n';
        return cli::kExitUsage;
    }
    const std::string speakerText = args.value("--speaker").value_or("1");
    if (speakerText != "1" && speakerText != "2") {
        ctx.err << "tavi si: --speaker takes 1 or 2\n";
        return cli::kExitUsage;
    }
    const std::filesystem::path file = args.positional()[1];
    cli::StreamPrompter prompter(ctx.err, Answer::No, false);
    LoadedSettings loaded = cli::loadCommandSettings(ctx, prompter);
    if (!loaded.ok)
        return cli::kExitUsage;
    std::string bytes;
    if (!readFile(file, bytes)) {
        ctx.err << "tavi si: cannot read " << file.string() << '\n';
        return cli::kExitUsage;
    }
    const DecodedText decoded = decodeText(bytes);
    VerbList verbs;
    const std::string verbFile = loaded.settings.folders.sharedData + "verbs.txt";
    if (!VerbList::loadFile(verbFile, verbs))
        ctx.err << "tavi si: cannot read the verb file " << verbFile
                << "; suggestions use the dictionary alone\n";
    AnalysisContext context = analysisContext(loaded.settings, prompter);
    const int speaker = speakerText == "2" ? 1 : 0;
    TranscriptAnalysis analysis = analyseText(decoded.utf8, context, {speaker, true});
    if (analysis.hasErrors()) {
        ctx.err << "tavi si: " << file.string() << " has " << analysis.check.errorCount()
                << " errors (see tavi check)\n";
        return cli::kExitFailed;
    }
    SiInsertion inserted =
        insertSiCodes(decoded.utf8, analysis.check.segmented,
                      analysis.result.selection.speakers[analysis.speaker].analysisSet, verbs,
                      context.measures.dictionary, context.measures.siCodePrefix);
    const std::string text = (decoded.hadBom ? std::string(kUtf8Bom) : "") + inserted.text;
    if (auto out = args.value("-o")) {
        if (writeFileAtomic(*out, text) != WriteStatus::Ok) {
            ctx.err << "tavi si: cannot write " << *out << '\n';
            return cli::kExitFailed;
        }
    } else {
        ctx.out << inserted.text;
    }
    ctx.err << inserted.coded << " utterances given a suggested SI code to review\n";
    return cli::kExitOk;
}

const cli::CommandRegistrar reg{
    {"si", "suggest Subordination Index codes for a transcript",
     "Usage: tavi si suggest FILE [-o OUT.tvi] [--speaker 1|2]\n\n"
     "Puts a suggested SI code, e.g. [SI-2?], before the terminator of every\n"
     "analysis-set utterance of the speaker that has none yet. The clause count\n"
     "comes from the verbs of the utterance (verbs.txt in the data folder and the\n"
     "grammatical-category dictionary). The \"?\" marks a code for review: it is\n"
     "not counted until it is removed. docs/macro-analysis.md tells how the count\n"
     "is made.\n\n"
     "Options:\n"
     "  -o OUT.tvi       write the coded transcript there (default: standard output)\n"
     "  --speaker 1|2    the speaker whose utterances are coded (default 1)\n\n"
     "Exit status: 0 written, 1 the transcript has errors or cannot be written,\n"
     "2 bad usage or an unreadable file.\n",
     run}};

} // namespace
