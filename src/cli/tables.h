// Yield tables as the forms hold them, taken out for a CSV report.
#pragma once

#include "batch/batch.h"
#include "cli/csv.h"
#include "results/output.h"

#include <string>
#include <vector>

namespace arbolith::console {

/// The table of a single run, on view in the Output window. The label of its plot is UTF-8.
CsvStand TableOf(const Output& output, const RunDefinition& run, const std::string& plot);

/// The tables of a batch that has been run, in the order of its sequences; a sequence without a
/// result has no rows. Loads species tables. Throws a RuntimeError for a result that can't be read.
std::vector<CsvStand> TablesOf(Batch& batch);

}  // namespace arbolith::console
