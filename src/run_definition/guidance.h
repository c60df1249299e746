// The help text of each step. It depends on the wood type, the unit system, the species and the
// option chosen, and names the limits that the checks enforce.
#pragma once

#include "run_definition/run_definition.h"

namespace arbolith {

/// Each sets its step's help label. GuideStep3 also shows or hides the link on Norway spruce.
void GuideStep2(RunDefinition& run);
void GuideStep3(RunDefinition& run);
void GuideStep4(RunDefinition& run);
void GuideStep6(RunDefinition& run);
void GuideStep7(RunDefinition& run);

/// The texts of a fresh form, which stand until a step's own guidance is set.
void GuideFreshForm(RunDefinition& run);

}  // namespace arbolith
