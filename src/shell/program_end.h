// The ways out of the program.
#pragma once

#include "batch/batch.h"

namespace arbolith {

/// The close box of the main form: offers to save a run or a batch that changed, then ends the
/// program whatever the answer.
void CloseMainForm(Batch& batch);

}  // namespace arbolith
