// The start state of form and record.
#pragma once

#include "run_definition/run_definition.h"

namespace arbolith {

/// Puts the input, the record, the checks, the summaries and the guidance into the start state,
/// whatever stood before. No event is raised meanwhile, so no model runs. The view that shows and
/// the commands below it stay as they are.
void ResetInput(RunDefinition& run);

}  // namespace arbolith
