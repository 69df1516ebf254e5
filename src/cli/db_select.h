// `tavi db select`: a transcript's matched database samples and the
// statistics of every measure beside the transcript's values.
#pragma once

#include "cli/command.h"

namespace tavi::cli {

int dbSelect(CommandContext& ctx);

} // namespace tavi::cli
