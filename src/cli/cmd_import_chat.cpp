// `tavi import-chat`: CHAT transcripts to TAVI transcripts, each checked
// after the import, with what was dropped said per file.
#include <algorithm>
#include <filesystem>
#include <ostream>
#include <string>
#include <vector>

#include "base/file_io.h"
#include "cli/args.h"
#include "cli/cli_settings.h"
#include "cli/command.h"
#include "cli/stream_prompter.h"
#include "import/chat_import.h"
#include "session/analysis_session.h"

namespace {

using namespace tavi;
namespace fs = std::filesystem;

// The folder all inputs lie in, so that --out-dir keeps the folders below it.
fs::path commonFolder(const std::vector<fs::path>& inputs) {
    fs::path common;
    bool first = true;
    for (const fs::path& in : inputs) {
        fs::path folder = in.parent_path();
        if (first) {
            common = folder;
            first = false;
            continue;
        }
        fs::path shared;
        auto a = common.begin(), b = folder.begin();
        for (; a != common.end() && b != folder.end() && *a == *b; ++a, ++b)
            shared /= *a;
        common = shared;
    }
    return common;
}

int run(cli::CommandContext& ctx) {
    cli::Args args(ctx.args, {"-o", "--out-dir", "--target"}, {});
    if (!args.ok() || args.positional().empty()) {
        ctx.err << "tavi import-chat: " << (args.ok() ? "no CHAT file given" : args.error())
                << '\n';
        return cli::kExitUsage;
    }
    auto outFile = args.value("-o");
    auto outDir = args.value("--out-dir");
    if (outFile && (outDir || args.positional().size() > 1)) {
        ctx.err << "tavi import-chat: -o takes one input file; use --out-dir for several\n";
        return cli::kExitUsage;
    }
    cli::StreamPrompter prompter(ctx.err, Answer::No, false);
    LoadedSettings loaded = cli::loadCommandSettings(ctx, prompter);
    if (!loaded.ok)
        return cli::kExitUsage;
    AnalysisContext context = analysisContext(loaded.settings, prompter);
    ChatImportOptions options;
    options.target = args.value("--target").value_or("");
    options.dateFormat = context.check.dateFormat;
    options.dictionary = context.measures.dictionary;
    AnalysisRequest checkOnly;
    checkOnly.measure = false;

    std::vector<fs::path> inputs;
    for (const std::string& p : args.positional())
        inputs.push_back(fs::absolute(p).lexically_normal());
    fs::path base = commonFolder(inputs);

    bool unreadable = false, failed = false;
    for (size_t i = 0; i < inputs.size(); ++i) {
        const std::string& shown = args.positional()[i];
        std::string chat;
        if (!readFile(inputs[i], chat)) {
            ctx.err << "tavi import-chat: cannot read " << shown << '\n';
            unreadable = true;
            continue;
        }
        ChatImport import = importChat(chat, options);
        if (!import.ok) {
            ctx.err << shown << ": not imported: " << import.problem << '\n';
            failed = true;
            continue;
        }
        fs::path out;
        if (outFile)
            out = *outFile;
        else if (outDir)
            out = fs::path(*outDir) / inputs[i].lexically_relative(base);
        else
            out = inputs[i];
        if (!outFile)
            out.replace_extension(".tvi");
        std::error_code ec;
        if (out.has_parent_path())
            fs::create_directories(out.parent_path(), ec);
        if (writeFileAtomic(out, "\xEF\xBB\xBF" + import.text) != WriteStatus::Ok) {
            ctx.err << "tavi import-chat: cannot write " << out.string() << '\n';
            failed = true;
            continue;
        }
        int utterances = 0;
        for (const ChatSpeakerMapping& s : import.speakers)
            utterances += s.utterances;
        ctx.err << shown << " -> " << out.string() << ": " << utterances << " utterances; "
                << droppedSummary(import);
        if (import.morFallbacks > 0)
            ctx.err << "; " << import.morFallbacks
                    << " utterances took their endings from the spelling (%mor not lining up)";
        ctx.err << '\n';
        TranscriptAnalysis check = analyseText(import.text, context, checkOnly);
        if (check.hasErrors()) {
            ctx.err << out.string() << ": the imported transcript has " << check.check.errorCount()
                    << " errors (see tavi check)\n";
            failed = true;
        }
    }
    if (unreadable)
        return cli::kExitUsage;
    return failed ? cli::kExitFailed : cli::kExitOk;
}

const cli::CommandRegistrar reg{
    {"import-chat", "import CHAT transcripts (TalkBank/CHILDES) as TAVI transcripts",
     "Usage: tavi import-chat [-o OUT.tvi | --out-dir DIR] [--target CODE] FILE.cha...\n\n"
     "Turns each CHAT transcript into a TAVI transcript and checks it. The target\n"
     "child is the 1st speaker, the other participant with the most utterances\n"
     "the 2nd, everyone else the third group. docs/chat-import.md gives every rule.\n"
     "For each file a line on standard error says where it went and what the\n"
     "notation could not hold (dropped, with counts).\n\n"
     "Options:\n"
     "  -o OUT.tvi       the output file (one input only)\n"
     "  --out-dir DIR    write into DIR, keeping the input files' folders below\n"
     "                   the folder they share (TD/B/523.cha -> DIR/TD/B/523.tvi)\n"
     "  --target CODE    CHAT code of the target speaker (default: the\n"
     "                   Target_Child, else CHI, else the first participant)\n"
     "Without -o or --out-dir each FILE.cha is written as FILE.tvi beside it.\n\n"
     "Exit status: 0 all imported and checked clean, 1 a file was not imported or\n"
     "its transcript has errors, 2 bad usage or a file that cannot be read.\n",
     run}};

} // namespace
