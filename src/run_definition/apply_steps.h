// Applying a step: its dependent controls and its summary follow what its controls hold now.
#pragma once

#include "run_definition/run_definition.h"

namespace arbolith {

/// Each marks the input as changed. ApplyStep1 empties what depends on the unit system or the wood
/// type when that is about to change, and commits step 1 unless it ended at a change of units.
void ApplyStep1(RunDefinition& run);
void ApplyStep2(RunDefinition& run);
void ApplyStep3(RunDefinition& run);
void ApplyStep4(RunDefinition& run);
void ApplyStep5(RunDefinition& run);
void ApplyStep6(RunDefinition& run);
/// Also stores the treatments in the record.
void ApplyStep7(RunDefinition& run);

/// ApplyStep1 for a click on a wood option, which carries its change out also behind a change of
/// units, so that a run never stands with the lists of the other wood type.
void ApplyWoodOption(RunDefinition& run);

/// The list of Land Capability classes, from 1 to `classes`, with none selected.
void FillLandCapabilities(RunDefinition& run, int classes);
/// The list of species from the loaded tables, with none selected.
void FillSpecies(RunDefinition& run);

}  // namespace arbolith
