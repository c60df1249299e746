// The ways out of the program.
#pragma once

#include "saved_runs/saved_runs.h"

namespace arbolith {

/// The close box of the main form: offers to save a run or a batch that changed, then ends the
/// program whatever the answer and whatever came of saving.
void CloseMainForm(SavedRuns& saved);

}  // namespace arbolith
