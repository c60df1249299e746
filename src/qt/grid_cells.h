// Draws the grid's cells: numbers to the right, headings in bold on a tint, and what doesn't fit
// cut visibly, so that a number never loses digits unseen.
#pragma once

#include <QStyledItemDelegate>

namespace arbolith {

class GridModel;

class GridCells final : public QStyledItemDelegate {
public:
    GridCells(const GridModel& model, QObject* parent);

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

private:
    QFont FontOf(const QStyleOptionViewItem& option, const QModelIndex& index) const;

    const GridModel& model_;
};

}  // namespace arbolith
