// Where a run's result goes: the window of the yield table as the single run driver needs it.
#pragma once

#include "forms/controls.h"
#include "forms/grid.h"

#include <string>

namespace arbolith {

/// The window that shows the yield table, created at its first use.
class YieldTable {
public:
    virtual ~YieldTable() = default;

    virtual Form& Window() = 0;
    /// Row 0 and column 0 are fixed and empty, row 1 holds the 25 codes, the data begin at row 2.
    virtual Grid& Table() = 0;
    /// The heading of the run.
    virtual Label& Title() = 0;
    /// The years from stump to breast height, in words.
    virtual Label& YTBH() = 0;
    /// What the reports need: the years as text, and the run as one line of the batch layout.
    virtual void SetReportTexts(const std::string& ytbh, const std::string& runLine) = 0;
    /// A new table can be graphed in all its variables.
    virtual void EnableGraphs() = 0;
    /// Copies the table's selection to the clipboard.
    virtual void CopySelection() = 0;
};

}  // namespace arbolith
