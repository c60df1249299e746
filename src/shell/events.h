// What each event of each form does: the one place to look up what a click or a key sets off.
#pragma once

#include "forms/resize.h"
#include "model_bridge/run_command.h"
#include "results/output.h"
#include "run_definition/run_definition.h"

namespace arbolith {

/// Wires every event of the main form.
void WireMainForm(RunDefinition& run, RunCommand& command, Resize& resize);

/// Wires every event of the Output window.
void WireOutput(Application& application, Output& output, Resize& resize);

}  // namespace arbolith
