#include "qt/text_columns.h"

#include <QApplication>

#include <algorithm>

namespace arbolith {

namespace {

// Between the line's edge and its text.
constexpr int kMargin = 3;
constexpr int kWhole = 1000;
// Between two lines.
constexpr int kSpacing = 2;

// Walks through a line of text from column to column.
class Cutter {
public:
    Cutter(const QString& text, const TextColumns& columns) : text_(text), columns_(columns) {}

    std::vector<ColumnPiece> Cut() {
        for (qsizetype at = 0; at < text_.size();) {
            if (const auto tabs = RunOf(u'\t', at); tabs > 0) {
                EndPiece(at);
                column_ = NextBehindTab();
                at += tabs;
                begin_ = at;
            } else if (const auto blanks = RunOf(u' ', at); blanks > 1 && NextIsInCell()) {
                EndPiece(at);
                ++column_;
                at += blanks;
                begin_ = at;
            } else {
                ++at;
            }
        }
        EndPiece(text_.size());
        return std::move(pieces_);
    }

private:
    qsizetype RunOf(QChar c, qsizetype from) const {
        auto end = from;
        while (end < text_.size() && text_[end] == c) ++end;
        return end - from;
    }

    bool NextIsInCell() const {
        return column_ + 1 < columns_.size() && !columns_[column_ + 1].behindTab;
    }

    // The last column takes what is left.
    std::size_t NextBehindTab() const {
        for (auto next = column_ + 1; next < columns_.size(); ++next)
            if (columns_[next].behindTab) return next;
        return columns_.size() - 1;
    }

    void EndPiece(qsizetype end) {
        const QString piece = text_.mid(begin_, end - begin_).trimmed();
        if (!piece.isEmpty()) pieces_.push_back({column_, piece});
    }

    const QString& text_;
    const TextColumns& columns_;
    std::vector<ColumnPiece> pieces_;
    std::size_t column_ = 0;
    qsizetype begin_ = 0;
};

}  // namespace

std::vector<ColumnPiece> CutIntoColumns(const QString& text, const TextColumns& columns) {
    return Cutter(text, columns).Cut();
}

void DrawInColumns(QPainter& painter, const QRect& line, const QString& text,
                   const TextColumns& columns, int width) {
    const QFontMetrics metrics = painter.fontMetrics();
    const int origin = line.left() + kMargin;
    const int end = line.right() - kMargin;
    int free = origin;
    for (const auto& piece : CutIntoColumns(text, columns)) {
        const int told = origin + columns[piece.column].left * width / kWhole;
        const int left = std::max(told, free);
        const QString shown = metrics.elidedText(piece.text, Qt::ElideRight, end - left);
        painter.drawText(QRect(left, line.top(), std::max(0, end - left), line.height()),
                         Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, shown);
        free = left + metrics.horizontalAdvance(shown + u' ');
    }
}

RowsInColumns::RowsInColumns(const TextColumns& columns, QFrame& list)
    : QStyledItemDelegate(&list), columns_(columns), list_(list) {}

void RowsInColumns::paint(QPainter* painter, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const {
    QStyleOptionViewItem row = option;
    initStyleOption(&row, index);
    const QString text = row.text;
    row.text.clear();
    const QStyle& style = row.widget == nullptr ? *QApplication::style() : *row.widget->style();
    style.drawControl(QStyle::CE_ItemViewItem, &row, painter, row.widget);

    const auto group = !(row.state & QStyle::State_Enabled) ? QPalette::Disabled
                       : (row.state & QStyle::State_Active) ? QPalette::Active
                                                            : QPalette::Inactive;
    const bool isSelected = row.state & QStyle::State_Selected;
    painter->setFont(row.font);
    painter->setPen(
        row.palette.color(group, isSelected ? QPalette::HighlightedText : QPalette::Text));
    DrawInColumns(*painter, row.rect, text, columns_, list_.width() - 2 * list_.frameWidth());
}

QSize RowsInColumns::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
    return {1, QStyledItemDelegate::sizeHint(option, index).height() + kSpacing};
}

}  // namespace arbolith
