#include "qt/grid_cells.h"

#include "qt/grid_model.h"

#include <QPainter>
#include <QtMath>

namespace arbolith {

namespace {

// Between a cell's edge and its text.
constexpr int kMargin = 3;

bool IsNumber(const QString& text) {
    bool isNumber = false;
    text.toDouble(&isNumber);
    return isNumber;
}

QPalette::ColorGroup GroupOf(QStyle::State state) {
    if (!(state & QStyle::State_Enabled)) return QPalette::Disabled;
    return state & QStyle::State_Active ? QPalette::Active : QPalette::Inactive;
}

QColor Tinted(const QPalette& palette) {
    const QColor base = palette.color(QPalette::Base);
    const QColor tint = palette.color(QPalette::Highlight);
    const auto mixed = [](int a, int b) { return (a * 6 + b) / 7; };
    return {mixed(base.red(), tint.red()), mixed(base.green(), tint.green()),
            mixed(base.blue(), tint.blue())};
}

}  // namespace

GridCells::GridCells(const GridModel& model, QObject* parent)
    : QStyledItemDelegate(parent), model_(model) {}

void GridCells::paint(QPainter* painter, const QStyleOptionViewItem& option,
                      const QModelIndex& index) const {
    const bool isHeading = model_.IsCentred(index);
    const bool isSelected = option.state & QStyle::State_Selected;
    const auto group = GroupOf(option.state);
    if (isSelected) {
        painter->fillRect(option.rect, option.palette.brush(group, QPalette::Highlight));
    } else if (isHeading) {
        painter->fillRect(option.rect, Tinted(option.palette));
    }
    const QString text = model_.TextOf(model_.GridRow(index), model_.GridCol(index));
    if (text.isEmpty()) return;

    const QFont font = FontOf(option, index);
    const QRect inside = option.rect.adjusted(kMargin, 0, -kMargin, 0);
    const auto side = isHeading        ? Qt::AlignHCenter
                      : IsNumber(text) ? Qt::AlignRight
                                       : Qt::AlignLeft;
    painter->setFont(font);
    painter->setPen(
        option.palette.color(group, isSelected ? QPalette::HighlightedText : QPalette::Text));
    painter->drawText(inside, static_cast<int>(side | Qt::AlignVCenter) | Qt::TextSingleLine,
                      QFontMetrics(font).elidedText(text, Qt::ElideRight, inside.width()));
}

QSize GridCells::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
    const QFontMetricsF metrics(FontOf(option, index));
    const QString text = model_.TextOf(model_.GridRow(index), model_.GridCol(index));
    // One pixel more: a text is cut by the fractions of its letters.
    return {qCeil(metrics.horizontalAdvance(text)) + 2 * kMargin + 1, qCeil(metrics.height())};
}

QFont GridCells::FontOf(const QStyleOptionViewItem& option, const QModelIndex& index) const {
    QFont font = option.font;
    font.setBold(model_.IsCentred(index));
    return font;
}

}  // namespace arbolith
