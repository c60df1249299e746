// The text report of a batch: a row of a model's output becomes a line whose columns stand under
// their heads, with a tab behind each for the spreadsheet. The save of the Output window shares the
// columns.
#pragma once

#include "model_bridge/variables.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace arbolith {

/// A row as text: the sequence's index in the batch, then the variables in their fixed order.
using DataValues = std::array<std::string, kVariableCodes.size() + 1>;
/// The widths of a line's columns, the plot label's first.
using DataLengths = std::array<std::int16_t, kVariableCodes.size() + 1>;

/// The heads of a run's fields, with a tab between them.
inline constexpr std::string_view kRunFieldHeads =
    "WOOD\tUNIT\tNAT\tSPEC\tLC\tSI\tFREQ\tXSPC\tYSPC\tRAGE\tRDBH\tT1AGE\tT2AGE\tT1DBH\tT2DBH\t"
    "IBA1\tIBA2\tISD\tSTK%";

/// The head of the plot label's column.
inline constexpr std::string_view kPlotHead = "PLOT #  ";

/// The heads of the variables' columns, right-aligned in their widths, with a tab between them.
std::string VariableHeads();

/// Replaces ages, frequencies and volumes by their whole parts; a text that isn't a number becomes
/// 0. All else stays as the model wrote it.
void BatchIntegerize(DataValues& datavals);

/// The widths of one line: those of the heads, wider where a value needs it. Throws 6 for a value
/// that is longer than a width can be.
void BatchGetDataLengths(const DataValues& datavals, std::string_view plot,
                         DataLengths& datalengths);

/// The line of a row, without a line end, in the widths of its values. Throws 5 for a plot label
/// that is longer than its column.
std::string BatchGetLineOutput(const DataValues& datavals, std::string_view plot,
                               const DataLengths& datalengths);

/// Appends the columns of the variables with a tab between them, right-aligned in the widths of
/// these values.
void AppendVariables(std::string& line, const DataValues& datavals, const DataLengths& datalengths);

}  // namespace arbolith
