// `tavi explore`: finds the utterances of transcripts that meet explore
// criteria, lists or counts them, inserts or deletes a code, or saves them as
// separate transcripts.
#include <charconv>
#include <filesystem>
#include <ostream>
#include <string>
#include <vector>

#include "base/file_io.h"
#include "base/json_text.h"
#include "base/text.h"
#include "cli/args.h"
#include "cli/cli_analysis.h"
#include "cli/command.h"
#include "cli/stream_prompter.h"
#include "explore/explore.h"
#include "explore/explore_edit.h"
#include "transcript/check_listing.h"
#include "transcript/transcript_file.h"

namespace {

using namespace tavi;
namespace fs = std::filesystem;

int usage(cli::CommandContext& ctx, const std::string& message) {
    ctx.err << "tavi explore: " << message << '\n';
    return cli::kExitUsage;
}

bool readCount(const std::string& text, int& n) {
    auto [end, ec] = std::from_chars(text.data(), text.data() + text.size(), n);
    return !text.empty() && ec == std::errc() && end == text.data() + text.size() && n >= 0;
}

// Picks one of `names` (in the order of the enumeration).
template <class E>
bool choose(const cli::Args& args, const char* flag, std::initializer_list<const char*> names,
            E& target, std::string& problem) {
    std::optional<std::string> v = args.value(flag);
    if (!v)
        return true;
    int i = 0;
    for (const char* name : names) {
        if (equalsIgnoreCase(*v, name)) {
            target = static_cast<E>(i);
            return true;
        }
        ++i;
    }
    problem = std::string(flag) + " takes ";
    i = 0;
    for (const char* name : names)
        problem += (i++ ? ", " : "") + std::string(name);
    return false;
}

// The criteria: the saved ones when asked for, then the flags. Empty problem: fine.
std::string criteriaFromFlags(const cli::Args& args, const Settings& settings, ExploreCriteria& c) {
    if (args.has("--saved-criteria")) {
        for (const KeywordLine& line : settings.sectionLines("YOL"))
            applyExploreCriteriaLine(line, c);
        for (const KeywordLine& line : settings.sectionLines("YOLIST"))
            applyExploreItemLine(line, c);
    }
    std::string problem;
    if (!choose(args, "--speaker", {"1", "2", "either"}, c.speaker, problem) ||
        !choose(args, "--utterances", {"total", "aset", "nonaset"}, c.utterances, problem) ||
        !choose(args, "--area", {"main", "maze", "both"}, c.area, problem) ||
        !choose(args, "--roots", {"produced", "identified", "either"}, c.roots, problem) ||
        !choose(args, "--code-level", {"word", "utterance", "either"}, c.codes, problem))
        return problem;
    for (const std::string& name : args.values("--type")) {
        std::optional<ExploreType> t = exploreTypeByName(name);
        if (!t)
            return "unknown utterance type " + name + " (see tavi explore --help)";
        c.types.insert(*t);
    }
    for (const std::string& kind : args.values("--maze-kind")) {
        if (equalsIgnoreCase(kind, "filled-pause"))
            c.mazeFilledPauses = true;
        else if (equalsIgnoreCase(kind, "repetition"))
            c.mazeRepetitions = true;
        else if (equalsIgnoreCase(kind, "revision"))
            c.mazeRevisions = true;
        else
            return "--maze-kind takes filled-pause, repetition or revision";
    }
    if (auto v = args.value("--min-length"); v && !readCount(*v, c.lengthFrom))
        return "--min-length takes a whole number";
    if (auto v = args.value("--max-length"); v && !readCount(*v, c.lengthTo))
        return "--max-length takes a whole number";
    if (args.has("--morphemes"))
        c.lengthInMorphemes = true;
    if (args.has("--all"))
        c.all = true;
    if (args.has("--not"))
        c.negate = true;
    for (const std::string& word : args.values("--word"))
        c.items.push_back(word);
    for (const std::string& code : args.values("--code")) {
        std::string_view item = trim(code);
        c.items.push_back(item.front() == '[' ? std::string(item) : "[" + std::string(item) + "]");
    }
    for (const std::string& file : args.values("--list-file")) {
        std::string text;
        if (!readTranscriptText(file, text))
            return "cannot read the list file " + file;
        for (std::string& item : parseWordListFile(text))
            c.items.push_back(std::move(item));
    }
    return {};
}

enum class Action { List, Count, Insert, Delete, Separate };

struct FileOutcome {
    std::string path;
    ExploreResult result;
};

void printList(const std::vector<FileOutcome>& files, std::ostream& out) {
    if (files.empty())
        return; // nothing was searched: no summary that could read as a result
    int found = 0, searched = 0;
    for (const FileOutcome& f : files) {
        if (files.size() > 1)
            out << f.path << '\n';
        for (const std::string& line : exploreListLines(f.result.matches))
            out << line << '\n';
        found += static_cast<int>(f.result.matches.size());
        searched += f.result.searched;
    }
    out << found << " of " << searched << " utterances found.\n";
}

void printJson(const std::vector<FileOutcome>& files, bool countOnly, std::ostream& out) {
    out << '[';
    bool first = true;
    for (const FileOutcome& f : files) {
        if (countOnly) {
            out << (first ? "\n  " : ",\n  ") << "{\"file\": " << jsonString(f.path)
                << ", \"found\": " << f.result.matches.size()
                << ", \"searched\": " << f.result.searched << '}';
            first = false;
            continue;
        }
        for (const ExploreMatch& m : f.result.matches) {
            out << (first ? "\n  " : ",\n  ") << "{\"file\": " << jsonString(f.path)
                << ", \"line\": " << m.line << ", \"speaker\": " << m.speaker + 1
                << ", \"text\": " << jsonString(m.text) << ", \"items\": [";
            for (size_t i = 0; i < m.items.size(); ++i)
                out << (i ? ", " : "") << jsonString(m.items[i]);
            out << "]}";
            first = false;
        }
    }
    out << (first ? "]\n" : "\n]\n");
}

int run(cli::CommandContext& ctx) {
    cli::Args args(ctx.args,
                   {"--speaker", "--utterances", "--area", "--roots", "--code-level", "--type",
                    "--maze-kind", "--min-length", "--max-length", "--word", "--code",
                    "--list-file", "--insert-code", "--delete-code", "--save-separate",
                    "--code-place", "--prefix"},
                   {"--morphemes", "--all", "--not", "--saved-criteria", "--list", "--count",
                    "--json", "--force", "--include-errors", "--in-matches", "--with-timing",
                    "--with-pauses", "--with-comments"});
    if (!args.ok())
        return usage(ctx, args.error());
    if (args.positional().empty())
        return usage(ctx, "no transcript given");
    int actions = 0;
    Action action = Action::List;
    auto pick = [&](bool given, Action a) {
        if (given) {
            ++actions;
            action = a;
        }
    };
    pick(args.has("--list"), Action::List);
    pick(args.has("--count"), Action::Count);
    pick(args.has("--insert-code"), Action::Insert);
    pick(args.has("--delete-code"), Action::Delete);
    pick(args.has("--save-separate"), Action::Separate);
    if (actions > 1)
        return usage(ctx, "give one of --list, --count, --insert-code, --delete-code and "
                          "--save-separate");
    CodePlace place = CodePlace::Utterance;
    std::string problem;
    if (!choose(args, "--code-place", {"utterance", "word"}, place, problem))
        return usage(ctx, problem);

    cli::StreamPrompter prompter(ctx.err, Answer::No, false);
    std::optional<cli::CommandAnalysis> prepared = cli::prepareAnalysis(ctx, prompter);
    if (!prepared)
        return cli::kExitUsage;
    ExploreCriteria criteria;
    problem = criteriaFromFlags(args, prepared->settings, criteria);
    if (!problem.empty())
        return usage(ctx, problem);

    const bool editing =
        action == Action::Insert || action == Action::Delete || action == Action::Separate;
    const bool keepErrors = editing ? args.has("--force") : args.has("--include-errors");
    std::vector<FileOutcome> files;
    int status = cli::kExitOk;
    for (const std::string& path : args.positional()) {
        // The analysis through the session, with the one policy for errors:
        // a list or count goes on past them with --include-errors, an edit
        // only with --force.
        FileOutcome f{path, {}};
        if (editing) {
            f.result.analysis = analyseFile(path, prepared->context);
            if (f.result.analysis.load != LoadStatus::Ok) {
                ctx.err << "tavi explore: "
                        << (f.result.analysis.load == LoadStatus::CannotOpen ? "cannot read "
                                                                             : "corrupted: ")
                        << path << '\n';
                status = cli::kExitUsage;
                continue;
            }
            if (f.result.analysis.hasErrors()) {
                for (const err& e : f.result.analysis.check.problems)
                    ctx.err << formatProblem(e) << '\n';
                if (!keepErrors) {
                    ctx.err << "tavi explore: " << path
                            << " contains errors; not changed (give --force to change it as it "
                               "stands)\n";
                    status = std::max(status, cli::kExitFailed);
                    continue;
                }
            }
        } else {
            cli::CommandOutcome outcome = cli::analyseForCommand(
                ctx, "explore", path, prepared->context, {}, keepErrors, prompter);
            if (!outcome.analysis) {
                status = std::max(status, outcome.exitStatus);
                continue;
            }
            f.result.analysis = std::move(*outcome.analysis);
        }
        std::string text;
        if (!readTranscriptText(path, text, prepared->context.encoding)) {
            ctx.err << "tavi explore: cannot read " << path << '\n';
            status = cli::kExitUsage;
            continue;
        }
        f.result.matches = exploreAnalysis(f.result.analysis, splitTranscriptLines(text), criteria,
                                           &f.result.searched);
        const std::string name = fs::path(path).filename().string();
        if (action == Action::Insert || action == Action::Delete) {
            CodeEdit edit =
                action == Action::Insert
                    ? insertExploreCode(text, f.result.matches, *args.value("--insert-code"), place)
                    : deleteExploreCode(text,
                                        args.has("--in-matches")
                                            ? matchLines(f.result.matches)
                                            : utteranceLines(f.result.analysis.check.segmented),
                                        *args.value("--delete-code"));
            if (edit.changed > 0) {
                fs::path backup = prepared->settings.folders.backup.empty()
                                      ? fs::path(path).parent_path()
                                      : fs::path(prepared->settings.folders.backup);
                EditWriteStatus written = writeEditedTranscript(path, edit.text, backup);
                if (written != EditWriteStatus::Ok) {
                    ctx.err << "tavi explore: "
                            << (written == EditWriteStatus::BackupFailed
                                    ? backupFailedMessage(backupPath(path, backup))
                                    : "cannot write " + path)
                            << "; " << path << " left as it was\n";
                    status = std::max(status, cli::kExitFailed);
                    continue;
                }
            }
            ctx.out << path << ": " << edit.changed
                    << (action == Action::Insert ? " codes inserted\n" : " codes deleted\n");
            continue;
        }
        if (action == Action::Separate) {
            SeparateOptions options;
            options.timing = args.has("--with-timing");
            options.pauses = args.has("--with-pauses");
            options.comments = args.has("--with-comments");
            options.prefix = args.value("--prefix").value_or("");
            fs::path folder = *args.value("--save-separate");
            std::error_code ec;
            fs::create_directories(folder, ec);
            fs::path target = folder / (options.prefix + name);
            if (fs::exists(target) && fs::equivalent(target, path, ec)) {
                ctx.err << "tavi explore: " << target.string()
                        << " is the transcript itself; give another folder or --prefix\n";
                status = std::max(status, cli::kExitUsage);
                continue;
            }
            const std::string separate =
                separateTranscriptText(splitTranscriptLines(text), f.result.matches, options);
            if (saveTranscript(target, separate) != WriteStatus::Ok) {
                ctx.err << "tavi explore: cannot write " << target.string() << '\n';
                status = std::max(status, cli::kExitFailed);
                continue;
            }
            ctx.out << target.string() << ": " << f.result.matches.size() << " utterances\n";
            continue;
        }
        files.push_back(std::move(f));
    }
    if (action == Action::List || action == Action::Count) {
        if (args.has("--json"))
            printJson(files, action == Action::Count, ctx.out);
        else if (action == Action::Count)
            for (const FileOutcome& f : files)
                ctx.out << f.path << '\t' << f.result.matches.size() << '\n';
        else
            printList(files, ctx.out);
    }
    return status;
}

const cli::CommandRegistrar reg{{
    "explore",
    "find the utterances that meet criteria; list, count, code or save them",
    "Usage: tavi explore [criteria] [--list|--count|--insert-code CODE|\n"
    "                    --delete-code CODE|--save-separate DIR] [--json] FILE...\n"
    "\n"
    "Finds the utterances of each transcript that meet the criteria. Every chosen\n"
    "criterion (each --type, the length, the words, the codes) tests an utterance;\n"
    "by default an utterance meeting any of them is found (OR), with --all one\n"
    "meeting every one (AND); --not finds the others. No criterion finds every\n"
    "utterance of the speaker.\n"
    "\n"
    "Criteria:\n"
    "  --speaker 1|2|either     whose utterances are searched (default 1)\n"
    "  --utterances total|aset|nonaset\n"
    "                           all utterances in the transcript cut (default), the\n"
    "                           analysis set, or those outside it\n"
    "  --type TYPE              an utterance type (repeatable): statement,\n"
    "                           exclamation, question, prompt, abandoned, interrupted,\n"
    "                           resp-question, resp-yes-no, resp-prompt, imitation,\n"
    "                           one-word, unintelligible, partly-intelligible,\n"
    "                           nonverbal, maze, pause, omission\n"
    "  --maze-kind KIND         narrows --type maze: filled-pause, repetition,\n"
    "                           revision (repeatable)\n"
    "  --min-length N           at least N words (0: no lower bound)\n"
    "  --max-length N           at most N words (0: no upper bound)\n"
    "  --morphemes              count the length in morphemes\n"
    "  --word ITEM              a word or root (repeatable); * at either end is a\n"
    "                           wildcard: \"go*\", \"*ing\"\n"
    "  --code ITEM              a code (repeatable), brackets optional: \"EW*\"\n"
    "  --list-file FILE.LST     words and codes of a word list file, one a line\n"
    "  --area main|maze|both    where words are looked for (default main body)\n"
    "  --roots produced|identified|either\n"
    "                           compare words as produced (default) or their\n"
    "                           identified roots (\"went|go\")\n"
    "  --code-level word|utterance|either\n"
    "                           which codes count (default either)\n"
    "  --all                    every criterion must be met (AND)\n"
    "  --not                    find the utterances that do not meet them\n"
    "  --saved-criteria         start from the criteria saved by the desktop\n"
    "                           program's Explore dialog (the \"YOL\" settings)\n"
    "\n"
    "Actions (one; default --list):\n"
    "  --list                   each found utterance as \"<entry>: <text>\" with the\n"
    "                           words and codes found, then a summary line\n"
    "  --count                  \"<file><TAB><found>\" per transcript\n"
    "  --json                   with --list or --count: JSON instead\n"
    "  --insert-code CODE       add [CODE] to every found utterance (before its\n"
    "                           terminator), or with --code-place word after every\n"
    "                           found word\n"
    "  --delete-code CODE       delete the code (a code list item: \"EW\", \"EW*\")\n"
    "                           from every utterance, or with --in-matches from the\n"
    "                           found ones\n"
    "  --code-place utterance|word\n"
    "  --in-matches\n"
    "  --save-separate DIR      save the \"$\" line, the header and the found\n"
    "                           utterances of each transcript into DIR under the\n"
    "                           same name (with --prefix TEXT before it)\n"
    "  --prefix TEXT\n"
    "  --with-timing            also keep the timing lines (\"-\")\n"
    "  --with-pauses            also keep the pause lines (\":\" and \";\")\n"
    "  --with-comments          also keep the comment lines (\"=\")\n"
    "\n"
    "Transcripts with errors are left out of a list or count unless\n"
    "--include-errors is given, and are never coded, de-coded or saved unless\n"
    "--force is given. A coded transcript is saved in place; its present contents\n"
    "are first kept as its automatic backup copy (\"name.$VI\" in the backup\n"
    "folder of the settings).\n"
    "\n"
    "Exit status: 0 done, 1 a transcript had errors or could not be written,\n"
    "2 bad usage or a file that cannot be read.\n",
    run,
}};

} // namespace
