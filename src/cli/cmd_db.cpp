// `tavi db`: creates reference databases, adds checked transcripts to them,
// lists, removes, clears and converts, with the builder's own messages.
#include <filesystem>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "base/format.h"
#include "base/text.h"
#include "cli/args.h"
#include "cli/cli_settings.h"
#include "cli/command.h"
#include "cli/db_select.h"
#include "cli/peer_flags.h"
#include "cli/stream_prompter.h"
#include "database/contents_listing.h"
#include "database/database_file.h"
#include "database/db_builder.h"
#include "database/older_format.h"
#include "database/sample_values.h"
#include "session/analysis_session.h"

namespace {

using namespace tavi;
using namespace tavi::db;

constexpr const char* kHelp =
    "Usage: tavi db SUBCOMMAND ...\n"
    "\n"
    "Reference databases (.tvidb): one record per stored speaker sample, with the\n"
    "sample's transcript.\n"
    "\n"
    "  create DB --context TEXT [--description TEXT] [--password TEXT]\n"
    "         [--sample-type 101|102|103|104] [--age-span 1-60]\n"
    "         [--error-codes LIST] [--fluency-codes LIST]\n"
    "         [--nonmainstream-codes LIST] [--code-switch-codes LIST]\n"
    "      Creates an empty database. Code lists are codes separated by blanks,\n"
    "      e.g. --error-codes \"[EW] [EO]\".\n"
    "  info DB [--password P]      the header: version, positions, context, lists\n"
    "  list DB [--password P]      the contents listing (\"Database Contents\")\n"
    "  add DB [--speaker 1|2] [--password P] [--date-format MM-DD-YY]\n"
    "         [--enforce-context] [--enforce-subgroup VALUE]\n"
    "         [--enforce-ethnicity VALUE] [--enforce-location VALUE]\n"
    "         [--enforce-select VALUE] [--deidentify] TRANSCRIPT...\n"
    "      Adds each transcript that passes the checker as one record for the\n"
    "      speaker (default 1). With an enforce flag, a transcript whose value\n"
    "      differs is stored with the database's value (the context's is the\n"
    "      database's sampling context); the switches and values are kept in the\n"
    "      database and hold for later adds. --deidentify stores each transcript\n"
    "      without its Name, ParticipantId, DOB and DOE lines, the age worked out\n"
    "      from the dates kept as CA. Messages go to stderr, each answered\n"
    "      OK; the list line of each added record and the summary go to stdout.\n"
    "      Transcripts are checked and their stored values measured under the\n"
    "      settings (date format unless --date-format is given, analysis set,\n"
    "      word base, transcript cut), as in every other command.\n"
    "  remove DB KEY [--password P]  removes the record KEY (e.g. \"sam;1\")\n"
    "  clear DB [--password P]       removes every record, keeps the header\n"
    "  convert FILE.sd1              converts the older three-file format into\n"
    "                                FILE.tvidb\n"
    "  select DB TRANSCRIPT [selection flags] [--json]\n"
    "  select DB TRANSCRIPT... --csv OUT [selection flags]\n"
    "      The samples of DB that match the transcript's target speaker, and for\n"
    "      every measure: the transcript's value, the number of samples, their\n"
    "      mean, SD, minimum and maximum, z and the comparison (above, below or\n"
    "      comparable at the SD interval). Each sample is recalculated with the\n"
    "      transcript's settings. --json prints one object; --csv OUT writes one\n"
    "      row per transcript. --exclude KEY leaves the record KEY out (repeat it\n"
    "      for more); --exclude-self leaves out the record of the transcript\n"
    "      itself (its base name and speaker, e.g. \"sam;1\"). Exit status 1 when\n"
    "      no sample matches (\"No samples match the criteria you selected.\").\n"
    "\n" TAVI_PEER_FLAGS_HELP "\n"
    "Exit status: 0 success, 1 the work failed or a transcript was not stored,\n"
    "2 bad usage.\n";

// Shows the builder's messages on stderr, but holds the latest one back so
// the summary, which comes last, can go to stdout.
class BuildPrompter final : public Prompter {
public:
    explicit BuildPrompter(std::ostream& err) : err_(err) {}
    void inform(std::string_view text) override {
        flush();
        held_ = std::string(text);
        holding_ = true;
    }
    Answer ask(std::string_view text) override {
        flush();
        err_ << text << " [Yes]\n";
        return Answer::Yes;
    }
    bool confirm(std::string_view text) override {
        flush();
        err_ << text << " [OK]\n";
        return true;
    }
    // The held message, if it is `summary`; otherwise it goes to stderr.
    bool takeSummary(const std::string& summary) {
        bool isSummary = holding_ && held_ == summary;
        if (!isSummary)
            flush();
        holding_ = false;
        return isSummary;
    }
    void flush() {
        if (holding_)
            err_ << held_ << '\n';
        holding_ = false;
    }

private:
    std::ostream& err_;
    std::string held_; // a message held back, when `holding_`
    bool holding_ = false;
};

int usage(cli::CommandContext& ctx, const std::string& problem) {
    ctx.err << "tavi db: " << problem << "\nRun 'tavi db --help' for usage.\n";
    return cli::kExitUsage;
}

std::optional<int> wholeNumber(const std::optional<std::string>& text) {
    if (!text)
        return std::nullopt;
    try {
        std::size_t used = 0;
        int value = std::stoi(*text, &used);
        if (used == text->size())
            return value;
    } catch (const std::exception&) {
    }
    return std::nullopt;
}

std::vector<std::string> listItems(const std::string& text) {
    return splitCodeList(text);
}

int create(cli::CommandContext& ctx, const cli::Args& args) {
    if (args.positional().size() != 2)
        return usage(ctx, "create needs one database file");
    auto context = args.value("--context");
    if (!context)
        return usage(ctx, "create needs --context TEXT");
    std::filesystem::path path = args.positional()[1];
    std::error_code ec;
    if (std::filesystem::exists(path, ec)) {
        ctx.err << "tavi db: " << path.string() << " already exists\n";
        return cli::kExitFailed;
    }
    DescriptiveHeader info;
    info.context = *context;
    info.description = args.value("--description").value_or("");
    if (auto password = args.value("--password")) {
        // The block holds "RESTRICTED " and the password in 79 characters, and
        // the reader trims it.
        if (password->empty() || utf16Length(*password) > kMaxPasswordUnits ||
            trim(*password) != *password)
            return usage(ctx, "--password takes 1 to 68 characters without surrounding blanks");
        info.restricted = true;
        info.password = *password;
    }
    if (args.has("--sample-type")) {
        auto code = wholeNumber(args.value("--sample-type"));
        if (!code || *code < 101 || *code > 104)
            return usage(ctx, "--sample-type takes 101, 102, 103 or 104");
        info.sampleType = sampleTypeFromCode(*code);
    }
    if (args.has("--age-span")) {
        auto span = wholeNumber(args.value("--age-span"));
        if (!span || *span < 1 || *span > 60)
            return usage(ctx, "--age-span takes a whole number from 1 to 60");
        info.ageSpan = *span;
    }
    const char* listFlags[] = {"--error-codes", "--fluency-codes", "--nonmainstream-codes",
                               "--code-switch-codes"};
    for (int i = 0; i < 4; ++i)
        if (auto list = args.value(listFlags[i]))
            info.codeLists[i] = listItems(*list);
    cli::StreamPrompter prompter(ctx.err, Answer::Yes, true);
    return createDatabase(path, info, prompter) ? cli::kExitOk : cli::kExitFailed;
}

std::unique_ptr<Database> openFor(const cli::Args& args, OpenFor mode, Prompter& prompter) {
    return openDatabase(args.positional()[1], mode, prompter,
                        args.value("--password").value_or(""));
}

int info(cli::CommandContext& ctx, const cli::Args& args) {
    cli::StreamPrompter prompter(ctx.err, Answer::Yes, true);
    auto db = openFor(args, OpenFor::Reading, prompter);
    if (!db)
        return cli::kExitFailed;
    auto records = db->records(prompter);
    const DescriptiveHeader& h = db->info();
    const char* listNames[] = {"Error codes", "Fluency codes", "Nonmainstream-form codes",
                               "Code-switch codes"};
    ctx.out << "Database: " << db->name() << '\n'
            << "Version: " << db->header().version << '\n'
            << "First record: " << db->header().firstRecord << '\n'
            << "Last record: " << db->header().lastRecord << '\n'
            << "Records: " << (records ? std::to_string(records->size()) : "unreadable") << '\n'
            << "Restricted: " << (h.restricted ? "yes" : "no") << '\n'
            << "Sampling context: " << h.context << '\n'
            << "Description: " << h.description << '\n';
    for (int i = 0; i < 4; ++i)
        ctx.out << listNames[i] << ": " << joinCodeList(h.codeLists[i]) << '\n';
    ctx.out << "Sample type: " << sampleTypeCode(h.sampleType) << '\n'
            << "Age span: " << h.ageSpan << '\n'
            << "Enforcement: " << h.enforcement << '\n';
    return records ? cli::kExitOk : cli::kExitFailed;
}

int list(cli::CommandContext& ctx, const cli::Args& args) {
    cli::StreamPrompter prompter(ctx.err, Answer::Yes, true);
    auto db = openFor(args, OpenFor::Reading, prompter);
    if (!db)
        return cli::kExitFailed;
    auto records = db->records(prompter);
    if (!records)
        return cli::kExitFailed;
    for (const std::string& line : contentsListing(db->name(), db->info().context, *records))
        ctx.out << line << '\n';
    return cli::kExitOk;
}

int add(cli::CommandContext& ctx, const cli::Args& args) {
    if (args.positional().size() < 3)
        return usage(ctx, "add needs a database file and at least one transcript");
    BuildPrompter prompter(ctx.err);
    auto db = openFor(args, OpenFor::Writing, prompter);
    if (!db || db->readOnly()) {
        prompter.flush();
        return cli::kExitFailed;
    }
    BuildOptions options = buildOptionsFromHeader(db->info());
    auto speaker = wholeNumber(args.value("--speaker").value_or("1"));
    if (!speaker || (*speaker != 1 && *speaker != 2))
        return usage(ctx, "--speaker takes 1 or 2");
    options.speaker = *speaker;
    if (args.has("--enforce-context"))
        options.enforce[EnforceContext] = true;
    const char* flags[] = {"", "--enforce-subgroup", "--enforce-ethnicity", "--enforce-location",
                           "--enforce-select"};
    for (int f = EnforceSubgroup; f < kEnforcedFields; ++f) {
        if (auto value = args.value(flags[f])) {
            options.enforce[f] = true;
            options.values[f] = *value;
        }
    }
    LoadedSettings loaded = cli::loadCommandSettings(ctx, prompter);
    if (!loaded.ok) {
        prompter.flush();
        return cli::kExitUsage;
    }
    AnalysisContext context = analysisContext(loaded.settings, prompter);
    CheckOptions& check = context.check;
    if (auto format = args.value("--date-format")) {
        if (*format == "DD-MM-YY" || *format == "DD.MM.YY" || *format == "DD/MM/YY")
            check.dateFormat.order = DateOrder::DayMonthYear;
        else if (*format == "MM-DD-YY" || *format == "MM.DD.YY" || *format == "MM/DD/YY")
            check.dateFormat.order = DateOrder::MonthDayYear;
        else
            return usage(ctx, "unknown date format " + *format);
        check.dateFormat.separator = (*format)[2];
    }
    options.dateOrder = check.dateFormat.order;
    options.encoding = context.encoding;
    options.deidentify = args.has("--deidentify");
    options.recordAdded = [&ctx](const std::string& line) { ctx.out << line << std::endl; };
    std::vector<std::string> files(args.positional().begin() + 2, args.positional().end());
    NoProgress progress;
    BuildResult result = addTranscripts(*db, files, options, standardChecker(check),
                                        analysisValues(std::move(context)), prompter, progress);
    bool summaryHeld = prompter.takeSummary(result.summary);
    if (summaryHeld)
        ctx.out << result.summary << '\n';
    bool allStored = !result.stopped && result.counters.added == static_cast<int>(files.size());
    return allStored ? cli::kExitOk : cli::kExitFailed;
}

int remove(cli::CommandContext& ctx, const cli::Args& args) {
    if (args.positional().size() != 3)
        return usage(ctx, "remove needs a database file and a record key");
    cli::StreamPrompter prompter(ctx.err, Answer::Yes, true);
    auto db = openFor(args, OpenFor::Writing, prompter);
    if (!db || db->readOnly())
        return cli::kExitFailed;
    return removeRecord(*db, args.positional()[2], prompter) ? cli::kExitOk : cli::kExitFailed;
}

int clear(cli::CommandContext& ctx, const cli::Args& args) {
    cli::StreamPrompter prompter(ctx.err, Answer::Yes, true);
    auto db = openFor(args, OpenFor::Writing, prompter);
    if (!db || db->readOnly())
        return cli::kExitFailed;
    return db->clearTranscripts(prompter) ? cli::kExitOk : cli::kExitFailed;
}

int convert(cli::CommandContext& ctx, const cli::Args& args) {
    if (args.positional().size() != 2)
        return usage(ctx, "convert needs one .sd1 file");
    cli::StreamPrompter prompter(ctx.err, Answer::Yes, true);
    auto converted = convertOlderDatabase(args.positional()[1], prompter);
    if (!converted)
        return cli::kExitFailed;
    ctx.out << converted->string() << '\n';
    return cli::kExitOk;
}

int run(cli::CommandContext& ctx) {
    if (!ctx.args.empty() && ctx.args.front() == "select")
        return cli::dbSelect(ctx);
    cli::Args args(ctx.args,
                   {"--context", "--description", "--password", "--sample-type", "--age-span",
                    "--error-codes", "--fluency-codes", "--nonmainstream-codes",
                    "--code-switch-codes", "--speaker", "--date-format", "--enforce-subgroup",
                    "--enforce-ethnicity", "--enforce-location", "--enforce-select"},
                   {"--enforce-context", "--deidentify"});
    if (!args.ok())
        return usage(ctx, args.error());
    if (args.positional().empty())
        return usage(ctx, "no subcommand given");
    const std::string& sub = args.positional()[0];
    if (sub == "create")
        return create(ctx, args);
    if (sub == "convert")
        return convert(ctx, args);
    if (args.positional().size() < 2)
        return usage(ctx, sub + " needs a database file");
    if (sub == "info")
        return info(ctx, args);
    if (sub == "list")
        return list(ctx, args);
    if (sub == "add")
        return add(ctx, args);
    if (sub == "remove")
        return remove(ctx, args);
    if (sub == "clear")
        return clear(ctx, args);
    return usage(ctx, "unknown subcommand " + sub);
}

const cli::CommandRegistrar reg{
    {"db", "create, fill, list and convert reference databases", kHelp, run}};

} // namespace
