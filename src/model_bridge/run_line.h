// The run line: the one line of text that describes a stand to a model.
#pragma once

#include "run_definition/run_record.h"

#include <string>

namespace arbolith {

/// The run line of a record: 18 fields, each followed by a tab. Lengths and diameters are in the
/// unit system that its first field announces.
std::string BuildRunLine(const RunRecord& record, const std::string& unitSystem,
                         bool shortHardwoodList);

}  // namespace arbolith
