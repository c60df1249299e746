// What a graph's axes are called, in both unit systems.
#pragma once

#include "run_definition/run_record.h"

#include <cstdint>
#include <span>
#include <string>

namespace arbolith {

/// The title of the variable in a column of the yield table (1 to 25); empty for any other number.
std::string GetAxisTitle(std::int16_t column, const Globals& globals);

/// The common title of series that are all of one family of variables, by their columns; empty
/// where they are of several. A column of no family (0, or the age) counts only as the first one.
std::string GetYTitle(std::span<const std::int16_t> seriesColumns, const Globals& globals);

/// Whether a set of columns holds one.
bool InColumnSet(std::span<const std::int16_t> columns, std::int16_t column);

}  // namespace arbolith
