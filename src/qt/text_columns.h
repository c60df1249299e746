// Text that stands in columns: the rows of a list and the heading above them.
#pragma once

#include "forms/controls.h"

#include <QFrame>
#include <QPainter>
#include <QStyledItemDelegate>

#include <vector>

namespace arbolith {

/// The part of a line of text that stands in one column, without blanks around it.
struct ColumnPiece {
    std::size_t column = 0;
    QString text;

    bool operator==(const ColumnPiece&) const = default;
};

/// Cuts a line of text into its columns; empty parts are left out.
std::vector<ColumnPiece> CutIntoColumns(const QString& text, const TextColumns& columns);

/// Draws a line of text in columns with the painter's font and pen; `width` is that of the whole
/// list. What is too long for its column moves the next one on; what is too long for the line is
/// cut visibly.
void DrawInColumns(QPainter& painter, const QRect& line, const QString& text,
                   const TextColumns& columns, int width);

/// Draws the rows of a list in columns; belongs to the list.
class RowsInColumns final : public QStyledItemDelegate {
public:
    RowsInColumns(const TextColumns& columns, QFrame& list);

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    /// As wide as the list.
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

private:
    const TextColumns& columns_;
    const QFrame& list_;
};

}  // namespace arbolith
