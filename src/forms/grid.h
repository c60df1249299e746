// The grid: rows of text cells, some rows and columns of which stay in place, with a selection from
// an anchor cell to a moving end.
#pragma once

#include "forms/control.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace arbolith {

/// Rows and columns are counted from 0, the fixed ones included. (Row, Col) is the current cell and
/// the anchor of the selection, (RowSel, ColSel) its moving end; both ends may stand on either
/// side. Setting a row or column outside the grid throws 9.
class Grid : public Control {
public:
    /// General: numbers to the right, other texts to the left.
    enum class CellAlignment { kCentre = 4, kGeneral = 9 };

    Grid(Control& parent, std::string name, Place place);

    int Rows() const { return static_cast<int>(rows_.size()); }
    int Cols() const { return cols_; }
    int FixedRows() const { return fixedRows_; }
    int FixedCols() const { return fixedCols_; }
    void SetRows(int rows);
    void SetCols(int cols);
    void SetFixedRows(int rows);
    void SetFixedCols(int cols);
    /// Empties all cells; the grid keeps its size.
    void Clear();

    int Row() const { return row_; }
    int Col() const { return col_; }
    int RowSel() const { return rowSel_; }
    int ColSel() const { return colSel_; }
    /// Makes the row the current one and reduces the selection to the current cell.
    void SetRow(int row);
    void SetCol(int col);
    void SetRowSel(int row);
    void SetColSel(int col);

    std::string_view Cell(int row, int col) const;
    void SetCell(int row, int col, std::string_view text);
    /// Appends a row from one text with a tab between its cells.
    void AddItem(std::string_view row);
    /// Deletes every row from `first` on that the test picks, in one pass.
    void RemoveItemsIf(int first, const std::function<bool(int row)>& picks);

    /// The selected cells as text: tabs between the cells of a row, a carriage return between rows.
    std::string Clip() const;

    /// Twips; -1 until set.
    int ColWidth(int col) const;
    void SetColWidth(int col, int width);
    CellAlignment GetCellAlignment(int row, int col) const;
    void SetCellAlignment(int row, int col, CellAlignment alignment);

    /// Grows with every change of a cell or of the size.
    int Revision() const { return revision_; }

private:
    void CheckRow(int row) const;
    void CheckCol(int col) const;
    void CollapseSelection();
    void Changed();

    // One text a row, a tab between cells: a table of a million rows stays in memory.
    std::vector<std::string> rows_;
    std::vector<std::vector<CellAlignment>> alignments_;
    std::vector<int> widths_;
    int cols_ = 2;
    int fixedRows_ = 1;
    int fixedCols_ = 1;
    int row_ = 1;
    int col_ = 1;
    int rowSel_ = 1;
    int colSel_ = 1;
    int revision_ = 0;
};

}  // namespace arbolith
