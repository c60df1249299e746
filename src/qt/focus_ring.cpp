#include "qt/focus_ring.h"

#include <QPainter>

namespace arbolith {

namespace {

constexpr int kThickness = 2;

}  // namespace

void PaintFocusRing(QWidget& widget, const QRect& place, QPalette::ColorRole colour) {
    QPainter painter(&widget);
    QPen pen(widget.palette().color(colour), kThickness);
    pen.setJoinStyle(Qt::MiterJoin);
    painter.setPen(pen);
    painter.drawRect(place.adjusted(1, 1, -1, -1));
}

}  // namespace arbolith
