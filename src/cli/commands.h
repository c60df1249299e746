// What the console program does with a run file and with a batch file. Both throw a Failure, or
// Interrupted, where no report comes of it.
#pragma once

#include "cli/arguments.h"
#include "cli/exit_status.h"
#include "cli/terminal.h"

namespace arbolith::console {

/// Runs the stand of a run file with all its values, or refuses it, and delivers its report.
ExitStatus RunStandFile(const Request& request, Terminal& terminal);

/// Runs the stands of a batch file and delivers their report; incomplete where stands are missing
/// from it, which are told.
ExitStatus RunBatchFile(const Request& request, Terminal& terminal);

}  // namespace arbolith::console
