// Committing: what the controls hold goes into the record, whatever it is worth; a text that is no
// number counts as 0.
#pragma once

#include "run_definition/run_definition.h"

namespace arbolith {

/// Each copies the controls of steps 1 to its own into the record. Whole-number fields that don't
/// fit 16 bits throw an overflow.
void CommitStep1(RunDefinition& run);
void CommitStep2(RunDefinition& run);
void CommitStep3(RunDefinition& run);
void CommitStep4(RunDefinition& run);
void CommitStep5(RunDefinition& run);
void CommitStep6(RunDefinition& run);
void CommitStep7(RunDefinition& run);

/// Stems per hectare (metric) or acre of a plantation with these spacings in m or ft, rounded to 2
/// decimals; 0 while a spacing is 0. Under imperial units the Y spacing plays no part.
double TreeFrequency(bool metric, double spacingX, double spacingY);

}  // namespace arbolith
