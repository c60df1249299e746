// The HTML report of a batch: a page with a table for each sequence, which prints on a page of its
// own. The save of the Output window builds the same page for one run.
#pragma once

#include "batch/text_report.h"
#include "run_definition/run_definition.h"

#include <string>
#include <string_view>

namespace arbolith {

/// Behind a table's last row, and at the end of the page; a line end follows both.
inline constexpr std::string_view kTableEnd = "</TABLE><br>\r\n";
inline constexpr std::string_view kPageEnd = "</BODY>\r\n</HTML>\r\n";

/// The head of the page. `gridlines` draws lines around the data cells.
std::string BatchGetHTMLHeader(bool gridlines);

/// Opens a table: its title, the stand, its treatments and the heads of the columns. `ytbh` is the
/// years to breast height, `params` a sequence line. Loads the species tables of its wood type.
/// Throws 9 for a line with too few fields.
std::string BatchGetHTMLTableHeader(RunDefinition& run, std::string_view ytbh,
                                    std::string_view plotnum, std::string_view params);

/// A row of a table, without a line end behind it.
std::string BatchGetRowOutput(const DataValues& datavals);
/// The same into a text that is used again for every row: pages are mostly rows.
void PutRowOutput(const DataValues& datavals, std::string& row);

}  // namespace arbolith
