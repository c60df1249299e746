#include "qt/grid_model.h"

#include "qt/form_window.h"
#include "qt/texts.h"

#include <algorithm>

namespace arbolith {

GridModel::GridModel(const Grid& grid, const FormWindow& window, QObject* parent)
    : QAbstractTableModel(parent), grid_(grid), window_(window) {}

bool GridModel::Update() {
    const int fixedRows = grid_.FixedRows();
    const int fixedCols = grid_.FixedCols();
    const int rows = std::max(0, grid_.Rows() - fixedRows);
    const int cols = std::max(0, grid_.Cols() - fixedCols);
    if (rows == rows_ && cols == cols_ && fixedRows == fixedRows_ && fixedCols == fixedCols_) {
        if (rows_ > 0 && cols_ > 0)
            emit dataChanged(index(0, 0), index(rows_ - 1, cols_ - 1), {Qt::DisplayRole});
        return false;
    }
    beginResetModel();
    rows_ = rows;
    cols_ = cols;
    fixedRows_ = fixedRows;
    fixedCols_ = fixedCols;
    endResetModel();
    return true;
}

QModelIndex GridModel::IndexOf(int row, int col) const {
    return index(row - fixedRows_, col - fixedCols_);
}

// The grid may have gone, or have shrunk since the last update, which is about to follow.
bool GridModel::Has(int row, int col) const {
    return !window_.IsGone() && row >= 0 && col >= 0 && row < grid_.Rows() && col < grid_.Cols();
}

QString GridModel::TextOf(int row, int col) const {
    return Has(row, col) ? ToQString(grid_.Cell(row, col)) : QString();
}

bool GridModel::IsCentred(const QModelIndex& index) const {
    const int row = GridRow(index);
    const int col = GridCol(index);
    return Has(row, col) && grid_.GetCellAlignment(row, col) == Grid::CellAlignment::kCentre;
}

bool GridModel::HasHeadingTexts() const {
    for (int col = 0; fixedRows_ > 0 && col < grid_.Cols(); ++col)
        if (!grid_.Cell(fixedRows_ - 1, col).empty()) return true;
    return false;
}

int GridModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : rows_;
}

int GridModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : cols_;
}

QVariant GridModel::data(const QModelIndex& index, int role) const {
    if (role != Qt::DisplayRole) return {};
    return TextOf(GridRow(index), GridCol(index));
}

// A heading without a text is told by the first cell that it heads.
QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const {
    const bool isSpoken = role == Qt::AccessibleTextRole;
    if (role != Qt::DisplayRole && !isSpoken) return {};
    const bool isColumn = orientation == Qt::Horizontal;
    const int row = isColumn ? fixedRows_ : section + fixedRows_;
    const int col = isColumn ? section + fixedCols_ : fixedCols_;
    const QString heading = isColumn ? TextOf(row - 1, col) : TextOf(row, col - 1);
    return isSpoken && heading.isEmpty() ? TextOf(row, col) : heading;
}

}  // namespace arbolith
