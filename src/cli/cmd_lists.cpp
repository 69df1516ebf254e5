// `tavi lists`: the distinct words, bound morphemes or codes of transcripts
// with their counts, as a word list file (one item per line) or a table.
#include <filesystem>
#include <ostream>
#include <string>
#include <vector>

#include "base/file_io.h"
#include "base/progress.h"
#include "batch/list_generation.h"
#include "cli/args.h"
#include "cli/cli_analysis.h"
#include "cli/command.h"
#include "cli/stream_prompter.h"

namespace {

using namespace tavi;

constexpr const char* kHelp =
    "Usage: tavi lists words|morphemes|codes [options] [-o FILE.LST] FILE...\n"
    "\n"
    "Lists the distinct words (roots, in lower case), bound morphemes (\"/ed\")\n"
    "or codes (\"[EW:went]\") of the transcripts, one item per line in\n"
    "alphabetical order: a word list file (.LST) that Explore and the word\n"
    "lists read. The choices start from the settings (GENVOC, GENBM,\n"
    "GENCODELIST); the options change them for this run.\n"
    "\n"
    "Options:\n"
    "  -o FILE.LST              write the list to FILE instead of stdout\n"
    "  --table                  a table instead: item, total uses, transcripts\n"
    "                           that use it, and the count of transcripts read\n"
    "  --percent                add the percentage of transcripts to the table\n"
    "  --by-count               most used items first\n"
    "  --speaker 1|2            the main speaker whose utterances are read\n"
    "                           (default 1)\n"
    "  --both-speakers          read both main speakers\n"
    "  --total                  every utterance, not only the analysis set\n"
    "  --area main|mazes|both   where words are read (default main body)\n"
    "  --include-codes LIST     only words (or codes) with these codes,\n"
    "                           e.g. \"[EW] [EO]\"\n"
    "  --exclude-codes LIST     never words (or codes) with these codes\n"
    "  --include-errors         read transcripts with errors as they stand\n"
    "\n"
    "A transcript that cannot be read, or one with errors, is left out with a\n"
    "message on stderr.\n"
    "\n"
    "Exit status: 0 every transcript was read, 1 one was left out, 2 bad usage\n"
    "or the output file cannot be written.\n";

int usage(cli::CommandContext& ctx, const std::string& problem) {
    ctx.err << "tavi lists: " << problem << "\nRun 'tavi lists --help' for usage.\n";
    return cli::kExitUsage;
}

int run(cli::CommandContext& ctx) {
    cli::Args args(
        ctx.args, {"-o", "--speaker", "--area", "--include-codes", "--exclude-codes"},
        {"--table", "--percent", "--by-count", "--both-speakers", "--total", cli::kIncludeErrors});
    if (!args.ok())
        return usage(ctx, args.error());
    if (args.positional().size() < 2)
        return usage(ctx, "give a kind (words, morphemes or codes) and at least one transcript");
    const std::string& kindText = args.positional()[0];
    ListKind kind = ListKind::Words;
    if (kindText == "morphemes")
        kind = ListKind::BoundMorphemes;
    else if (kindText == "codes")
        kind = ListKind::Codes;
    else if (kindText != "words")
        return usage(ctx, "unknown kind " + kindText + " (words, morphemes or codes)");
    const std::string speaker = args.value("--speaker").value_or("1");
    if (speaker != "1" && speaker != "2")
        return usage(ctx, "--speaker takes 1 or 2");

    cli::StreamPrompter prompter(ctx.err, Answer::No, false);
    std::optional<cli::CommandAnalysis> prepared = cli::prepareAnalysis(ctx, prompter);
    if (!prepared)
        return cli::kExitUsage;
    ListOptions options =
        listOptionsFromLines(prepared->settings.sectionLines(listSectionKeyword(kind)));
    if (auto area = args.value("--area")) {
        if (*area == "main")
            options.area = WordArea::MainBody;
        else if (*area == "mazes")
            options.area = WordArea::Mazes;
        else if (*area == "both")
            options.area = WordArea::MainBodyAndMazes;
        else
            return usage(ctx, "--area takes main, mazes or both");
    }
    if (args.has("--both-speakers"))
        options.bothSpeakers = true;
    if (args.has("--total"))
        options.analysisSetOnly = false;
    if (args.has("--by-count"))
        options.countFirst = true;
    if (args.has("--percent"))
        options.percentTranscripts = true;
    if (auto codes = args.value("--include-codes"))
        options.includeCodes = *codes;
    if (auto codes = args.value("--exclude-codes"))
        options.excludeCodes = *codes;

    std::vector<std::filesystem::path> files(args.positional().begin() + 1,
                                             args.positional().end());
    NoProgress progress;
    GeneratedList list =
        generateList(kind, options, files, prepared->context, speaker == "2" ? 1 : 0,
                     args.has(cli::kIncludeErrors), progress);
    for (const std::string& message : list.messages)
        ctx.err << "tavi lists: " << message << '\n';
    std::string text = args.has("--table") ? listTableText(list, options) : listFileText(list);
    if (auto out = args.value("-o")) {
        if (writeFileAtomic(*out, text) != WriteStatus::Ok) {
            ctx.err << "tavi lists: cannot write " << *out << '\n';
            return cli::kExitUsage;
        }
    } else {
        ctx.out << text;
    }
    return list.messages.empty() ? cli::kExitOk : cli::kExitFailed;
}

const cli::CommandRegistrar reg{
    {"lists", "the distinct words, bound morphemes or codes of transcripts", kHelp, run}};

} // namespace
