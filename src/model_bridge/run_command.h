// The Run button: the one road from the step form to a result.
#pragma once

#include "model_bridge/yield_table.h"
#include "run_definition/run_definition.h"

#include <functional>

namespace arbolith {

struct RunCommand {
    RunDefinition& run;
    /// The window of the result, created at its first use.
    std::function<YieldTable&()> result;
    /// Writes the input back into the batch sequence that is being edited.
    std::function<void()> applySequence;
};

/// Probes once more, checks all input and commits it. False where there is a fault, which is then
/// told, with its step shown.
bool CommitFaultlessRun(RunDefinition& run);

/// Checks the input, runs the stand (or applies it to its sequence, while the button says "Apply")
/// and copies the whole table to the clipboard. A fault of the input is told and its step shown; a
/// run-time error ends the command.
void ClickRun(RunCommand& command);

}  // namespace arbolith
