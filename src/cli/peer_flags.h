// The database selection flags shared by `tavi db select` and the reports
// that compare with a database: --age-span, --age-range, --grade, --gender,
// --subgroup, --ethnicity, --location, --select, --equate, --apply-cut,
// --sd-interval. The reports' view of a comparison is in batch/peer_report_inputs.h.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "cli/args.h"
#include "cli/command.h"
#include "database/peer_selection.h"
#include "session/analysis_session.h"

// The selection flags that take a value, and the switches, for cli::Args.
#define TAVI_PEER_VALUED_FLAGS                                                                     \
    "--age-span", "--age-range", "--grade", "--gender", "--subgroup", "--ethnicity", "--location", \
        "--select", "--equate", "--sd-interval"
#define TAVI_PEER_SWITCHES "--apply-cut"

// The help text of the selection flags, a string literal.
#define TAVI_PEER_FLAGS_HELP                                                                       \
    "Selection of database samples:\n"                                                             \
    "  --speaker 1|2        the transcript's target speaker (default 1)\n"                         \
    "  --age-span N         samples within N months (1 to 60) of the target's age\n"               \
    "                       (default: the database's age span)\n"                                  \
    "  --age-range FROM-TO  samples aged FROM to TO, both included; ages as\n"                     \
    "                       years;months (7;3) or decimal years (7.25)\n"                          \
    "  --grade G            samples of grade G\n"                                                  \
    "  --gender M|F|N       samples of that gender (a warning when it is not the\n"                \
    "                       target's)\n"                                                           \
    "  --subgroup S, --ethnicity E, --location L, --select S\n"                                    \
    "                       samples with that value (default: all)\n"                              \
    "  --equate words|time|utts|none\n"                                                            \
    "                       analyse each sample up to the transcript's number of\n"                \
    "                       total words (default), elapsed time or analysis-set\n"                 \
    "                       utterances, or whole\n"                                                \
    "  --apply-cut          apply the transcript cut to the samples too\n"                         \
    "  --sd-interval X      values at or beyond X SD from the database mean differ\n"              \
    "                       (default: the SDINT setting, else 1)\n"

namespace tavi::cli {

// Sets the selection from the flags; the problem with a flag (bad usage)
// when there is one.
std::optional<std::string> applyPeerFlags(const Args& args, db::PeerSelection& selection);

// A comparison with the database still open: the samples' records and
// stored transcripts stay readable (graphs, explore reports).
struct OpenComparison {
    std::unique_ptr<db::PeerDatabase> database;
    db::PeerTarget target;
    db::PeerSnapshot snapshot;
};

// As compareForCommand, keeping the database and the target.
std::optional<OpenComparison>
openComparisonForCommand(CommandContext& ctx, const Args& args, const std::string& transcriptPath,
                         const TranscriptAnalysis& analysis, const Settings& settings,
                         const AnalysisContext& context, Prompter& prompter, int& status);

// Compares the analysed transcript with the database of `--db` under the
// selection flags, saying every problem through the prompter. Nullopt with
// the exit status in `status` when it cannot be made.
std::optional<db::PeerSnapshot>
compareForCommand(CommandContext& ctx, const Args& args, const std::string& transcriptPath,
                  const TranscriptAnalysis& analysis, const Settings& settings,
                  const AnalysisContext& context, Prompter& prompter, int& status);

} // namespace tavi::cli
