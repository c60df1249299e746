// Yield tables as comma-separated values: one header line, then a line for each stand and age.
// Texts are UTF-8, lines end in CR LF, and what holds a comma, a quote or a line end stands in
// quotes.
#pragma once

#include "model_bridge/variables.h"

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace arbolith::console {

/// One age of a stand: the variables in their fixed order, as text.
using CsvRow = std::array<std::string, kVariableCodes.size()>;

/// The yield table of one stand. Texts are UTF-8.
struct CsvStand {
    std::string plot;
    std::string wood;     ///< "Softwood" or "Hardwood".
    std::string species;  ///< In words.
    bool isMetric = true;
    std::string yearsToBreastHeight;
    std::vector<CsvRow> rows;
};

/// The whole text. The units stand in the header's names; where stands of both unit systems meet, a
/// variable has a column for each, and a stand fills those of its own.
std::string CsvText(const std::vector<CsvStand>& stands);

/// A value as a field: in quotes where it needs them.
std::string CsvField(std::string_view value);

}  // namespace arbolith::console
