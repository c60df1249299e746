// Text that stands in columns: the rows of a list and the heading above them.
#pragma once

#include "forms/controls.h"
#include "qt/scale.h"

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

/// Draws a line of text in columns with the painter's font and pen. What is too long for its column
/// moves the next one on; what is too long for the line is cut visibly.
void DrawInColumns(QPainter& painter, const QRect& line, const QString& text,
                   const TextColumns& columns, const Scale& scale);

/// Draws the rows of a list in columns.
class RowsInColumns final : public QStyledItemDelegate {
public:
    /// `scale` is asked anew for each row.
    RowsInColumns(const TextColumns& columns, const Scale& scale, QObject* parent);

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    /// As wide as the list.
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

private:
    const TextColumns& columns_;
    const Scale& scale_;
};

}  // namespace arbolith
