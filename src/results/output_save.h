// The save of the Output window: the table on view with the parameters of its run, as a text report
// or as an HTML page.
#pragma once

#include "batch/batch.h"
#include "results/output.h"

namespace arbolith {

/// Asks for the file and writes it, in the format of the filter that is chosen. A cancelled dialog
/// writes the file of the save before again; where there was none, nothing. No failure is told.
/// Loads the species tables of the run. The table's cursor is in its first cell afterwards.
void SaveOutput(Output& output, Batch& batch);

}  // namespace arbolith
