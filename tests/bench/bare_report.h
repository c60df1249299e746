// The floor under a batch run: the same model calls, and the tokens of their outputs copied into
// the same report by a bare loop.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace arbolith::bench {

/// What a report is made of besides the rows.
struct ReportTexts {
    bool html = false;
    std::string head;                ///< All before the first block.
    std::string tail;                ///< All behind the last row of each model's blocks.
    std::string end;                 ///< All behind that of the last model.
    std::string columnHeads;         ///< Of a block in a text.
    std::vector<std::string> plots;  ///< By sequence.
    /// By sequence, what a table begins with, before and behind the years to breast height.
    std::vector<std::string> tablesBefore;
    std::vector<std::string> tablesBehind;
};

/// Writes the report of outputs of a model each, which are read in this order.
void CopyBare(const std::vector<std::string>& outputs, const ReportTexts& texts,
              const std::string& report);

/// A file's bytes.
std::string ReadBytes(const std::string& path);

}  // namespace arbolith::bench
