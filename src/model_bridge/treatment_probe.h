// The treatment probe: runs the model quietly on the run as it stands and offers the treatment
// fields that make sense for the stand at the time of treatment.
#pragma once

#include "run_definition/run_definition.h"

namespace arbolith {

/// Shows or hides the fields of BA1, Spacing, Age2 and BA2, and leaves the stems per unit area at
/// treatment 1's time in `tf_textbox` where a spacing is possible. A rotation that isn't valid, or
/// an error, ends it with the fields as they are.
void TreatmentProbe(RunDefinition& run);

}  // namespace arbolith
