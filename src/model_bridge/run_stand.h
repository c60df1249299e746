// The single run driver: a committed record becomes a yield table.
#pragma once

#include "model_bridge/yield_table.h"
#include "run_definition/run_definition.h"

namespace arbolith {

/// Runs the model once on the record and shows the result. A run-time error ends it where it
/// stands: the window is then hidden, the table in a partial state.
void RunStand(RunDefinition& run, YieldTable& result);

}  // namespace arbolith
