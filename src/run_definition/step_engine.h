// The step engine: which steps may be entered when, and what moves when a step's button is pressed
// or a field changes.
#pragma once

#include "run_definition/run_definition.h"

namespace arbolith {

/// Runs the checks of steps 1 to `count`, up to the first that finds a fault; that of step 7 looks
/// at everything. Nothing in advanced mode.
void CheckSteps(RunDefinition& run, int count);

/// Enables the step buttons up to `level`, Run from level 7 and appending from level 8. Advanced
/// mode raises the level to 8.
void EnableSteps(RunDefinition& run, int level);

/// Shows the frame and the help of one step, 0 for none, and moves the focus to its field.
void ShowStep(RunDefinition& run, int step);
void HideStepFrames(RunDefinition& run);

/// Behind a failed check: brings the single-run view forward and shows the failed step.
void ShowFailedStep(RunDefinition& run);

/// Behind a change in a step: checks all steps reached and adjusts the buttons, without a message.
void RecheckSteps(RunDefinition& run, int step);

/// The button of a step, 1 to 7. A fault in an earlier step is told and that step is shown instead.
void PressStepButton(RunDefinition& run, int step);

/// The menu entry of the advanced mode: asks before it is switched on; every switch resets the
/// input.
void ToggleAdvancedMode(RunDefinition& run);

/// The told box of a failed check.
void ShowInputError(RunDefinition& run);

}  // namespace arbolith
