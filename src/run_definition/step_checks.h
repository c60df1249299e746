// The checks of steps 1 to 6: whether the controls hold a legal stand.
#pragma once

#include "run_definition/run_definition.h"

namespace arbolith {

/// Each clears the step error, and sets it with its message at the first fault; none looks at
/// anything in advanced mode. CheckStep2 sets a hardwood run that isn't natural right instead.
void CheckStep1(RunDefinition& run);
void CheckStep2(RunDefinition& run);
void CheckStep3(RunDefinition& run);
void CheckStep4(RunDefinition& run);
void CheckStep5(RunDefinition& run);
void CheckStep6(RunDefinition& run);

/// Opens a check: clears the step error. False in advanced mode, where nothing is checked.
bool BeginCheck(RunDefinition& run);
/// Reports a fault of a step.
void Fault(RunDefinition& run, std::int16_t step, const std::string& message);

}  // namespace arbolith
