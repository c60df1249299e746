// The ways out of the program.
#pragma once

#include "run_definition/run_definition.h"

namespace arbolith {

/// The close box of the main form: offers to save a run that changed, then ends the program
/// whatever the answer.
void CloseMainForm(RunDefinition& run);

}  // namespace arbolith
