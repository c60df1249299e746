// The grid's ordinary cells as a table for Qt, its fixed row and column as the headers. Reads the
// grid itself, so that a table of any length costs nothing twice.
#pragma once

#include "forms/grid.h"

#include <QAbstractTableModel>
#include <QModelIndex>
#include <QString>

namespace arbolith {

class FormWindow;

class GridModel final : public QAbstractTableModel {
public:
    /// Reads the grid for as long as the window's form lives.
    GridModel(const Grid& grid, const FormWindow& window, QObject* parent);

    /// Takes over the grid as it stands. True where its size has changed.
    bool Update();

    /// The cell of a grid row and column; invalid for a fixed one.
    QModelIndex IndexOf(int row, int col) const;
    int GridRow(const QModelIndex& index) const { return index.row() + fixedRows_; }
    int GridCol(const QModelIndex& index) const { return index.column() + fixedCols_; }
    /// The text of a grid cell; empty outside the grid.
    QString TextOf(int row, int col) const;
    /// Whether a cell is centred, as those of a heading row are.
    bool IsCentred(const QModelIndex& index) const;
    bool HasHeadingTexts() const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    bool Has(int row, int col) const;

    const Grid& grid_;
    const FormWindow& window_;
    int rows_ = 0;
    int cols_ = 0;
    int fixedRows_ = 0;
    int fixedCols_ = 0;
};

}  // namespace arbolith
