// From a model's output to the blocks of a report, a row at a time.
#pragma once

#include "batch/batch.h"
#include "batch/text_report.h"

#include <functional>
#include <string_view>

namespace arbolith {

/// The numbers of a batch run's files.
inline constexpr int kReportFile = 1;
inline constexpr int kSoftwoodFile = 4;
inline constexpr int kHardwoodFile = 5;
inline constexpr int kBatchExchangeFile = 9;

/// What the models leave in the application folder.
inline constexpr const char* kSoftwoodOutputName = "_SOFTOUT.TMP";
inline constexpr const char* kHardwoodOutputName = "_HARDOUT.TMP";

/// Reads a model's output, which is open under `outputFile`, to its end: `head` takes the line with
/// a stand's years to breast height, `row` each of its rows.
void ForEachOutputLine(NumberedFiles& files, int outputFile,
                       const std::function<void(std::string_view)>& head,
                       const std::function<void(std::string_view)>& row);

/// Takes a row of a model's output apart at its blanks; what stands behind the last but one token
/// is the last one. Throws 5 for a row with too few tokens.
void SplitRow(std::string_view row, DataValues& datavals);

/// Writes a block to the report for each stand of a model's output, which is open under
/// `outputFile`. Throws 5 for a row with too few tokens, 6 or 9 for a sequence
/// that the batch doesn't have, and what the report's lines throw.
void WriteBlocks(Batch& batch, int outputFile);

}  // namespace arbolith
