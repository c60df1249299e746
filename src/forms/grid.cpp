#include "forms/grid.h"

#include "platform/runtime_error.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace arbolith {

namespace {

std::size_t At(int position) {
    return static_cast<std::size_t>(position);
}

// The cell of a row's text: the piece behind `col` tabs.
std::string_view CellIn(std::string_view row, int col) {
    for (; col > 0; --col) {
        const auto tab = row.find('\t');
        if (tab == std::string_view::npos) return {};
        row.remove_prefix(tab + 1);
    }
    return row.substr(0, row.find('\t'));
}

}  // namespace

Grid::Grid(Control& parent, std::string name, Place place)
    : Control(ControlKind::kGrid, parent, std::move(name), "", place), rows_(2), widths_(2, -1) {}

void Grid::CheckRow(int row) const {
    if (row < 0 || row >= Rows()) throw RuntimeError(ErrorNumber::kSubscript);
}

void Grid::CheckCol(int col) const {
    if (col < 0 || col >= cols_) throw RuntimeError(ErrorNumber::kSubscript);
}

void Grid::Changed() {
    ++revision_;
    Touch();
}

void Grid::SetRows(int rows) {
    if (rows < 0) throw RuntimeError(ErrorNumber::kInvalidCall);
    rows_.resize(At(rows));
    alignments_.resize(std::min(alignments_.size(), At(rows)));
    row_ = std::clamp(row_, 0, std::max(0, rows - 1));
    CollapseSelection();
    Changed();
}

void Grid::SetCols(int cols) {
    if (cols < 1) throw RuntimeError(ErrorNumber::kInvalidCall);
    cols_ = cols;
    widths_.resize(At(cols), -1);
    col_ = std::min(col_, cols - 1);
    CollapseSelection();
    Changed();
}

void Grid::SetFixedRows(int rows) {
    fixedRows_ = rows;
    Changed();
}

void Grid::SetFixedCols(int cols) {
    fixedCols_ = cols;
    Changed();
}

void Grid::Clear() {
    for (auto& row : rows_) row.clear();
    alignments_.clear();
    Changed();
}

void Grid::CollapseSelection() {
    rowSel_ = row_;
    colSel_ = col_;
}

void Grid::SetRow(int row) {
    CheckRow(row);
    row_ = row;
    CollapseSelection();
    Touch();
}

void Grid::SetCol(int col) {
    CheckCol(col);
    col_ = col;
    CollapseSelection();
    Touch();
}

void Grid::SetRowSel(int row) {
    CheckRow(row);
    rowSel_ = row;
    Touch();
}

void Grid::SetColSel(int col) {
    CheckCol(col);
    colSel_ = col;
    Touch();
}

std::string_view Grid::Cell(int row, int col) const {
    CheckRow(row);
    CheckCol(col);
    return CellIn(rows_[At(row)], col);
}

void Grid::SetCell(int row, int col, std::string_view text) {
    CheckRow(row);
    CheckCol(col);
    auto& line = rows_[At(row)];
    const auto tabs = std::count(line.begin(), line.end(), '\t');
    if (tabs < col) line.append(At(col - static_cast<int>(tabs)), '\t');
    const auto cell = CellIn(line, col);
    const auto position = static_cast<std::size_t>(cell.data() - line.data());
    line.replace(position, cell.size(), text);
    Changed();
}

void Grid::AddItem(std::string_view row) {
    rows_.emplace_back(row);
    Changed();
}

void Grid::RemoveItemsIf(int first, const std::function<bool(int row)>& picks) {
    const bool hasAlignments = !alignments_.empty();
    if (hasAlignments) alignments_.resize(rows_.size());
    int kept = first;
    for (int row = first; row < Rows(); ++row) {
        if (picks(row)) continue;
        if (kept != row) {
            rows_[At(kept)] = std::move(rows_[At(row)]);
            if (hasAlignments) alignments_[At(kept)] = std::move(alignments_[At(row)]);
        }
        ++kept;
    }
    if (kept < Rows()) SetRows(kept);
}

std::string Grid::Clip() const {
    const auto [top, bottom] = std::minmax(row_, rowSel_);
    const auto [left, right] = std::minmax(col_, colSel_);
    std::string clip;
    for (int row = top; row <= bottom && row < Rows(); ++row) {
        if (row != top) clip += '\r';
        for (int col = left; col <= right; ++col) {
            if (col != left) clip += '\t';
            clip += CellIn(rows_[At(row)], col);
        }
    }
    return clip;
}

int Grid::ColWidth(int col) const {
    CheckCol(col);
    return widths_[At(col)];
}

void Grid::SetColWidth(int col, int width) {
    CheckCol(col);
    if (widths_[At(col)] == width) return;
    widths_[At(col)] = width;
    Changed();
}

Grid::CellAlignment Grid::GetCellAlignment(int row, int col) const {
    CheckRow(row);
    CheckCol(col);
    if (At(row) >= alignments_.size() || At(col) >= alignments_[At(row)].size())
        return CellAlignment::kGeneral;
    return alignments_[At(row)][At(col)];
}

void Grid::SetCellAlignment(int row, int col, CellAlignment alignment) {
    CheckRow(row);
    CheckCol(col);
    if (alignments_.size() <= At(row)) alignments_.resize(At(row) + 1);
    auto& ofRow = alignments_[At(row)];
    ofRow.resize(std::max(ofRow.size(), At(cols_)), CellAlignment::kGeneral);
    ofRow[At(col)] = alignment;
    Touch();
}

}  // namespace arbolith
