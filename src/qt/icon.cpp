#include "qt/icon.h"

#include <QPainter>
#include <QPolygonF>

namespace arbolith {

namespace {

// The tree is drawn on a field of this width and height.
constexpr double kField = 64;
const QColor kBark(0x6B, 0x45, 0x2B);
const QColor kLight(0x3F, 0x9B, 0x4F);
const QColor kShade(0x2A, 0x74, 0x3B);

// One tier of branches: lit from the left, in shade on the right.
void DrawTier(QPainter& painter, double top, double bottom, double halfWidth) {
    const double middle = kField / 2;
    const QPolygonF lit({{middle, top}, {middle, bottom}, {middle - halfWidth, bottom}});
    const QPolygonF shaded({{middle, top}, {middle, bottom}, {middle + halfWidth, bottom}});
    painter.setBrush(kLight);
    painter.drawPolygon(lit);
    painter.setBrush(kShade);
    painter.drawPolygon(shaded);
}

}  // namespace

QPixmap TreePicture(int side) {
    QPixmap picture(side, side);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(side / kField, side / kField);
    painter.setPen(Qt::NoPen);
    painter.setBrush(kBark);
    painter.drawRect(QRectF(28, 48, 8, 14));
    DrawTier(painter, 28, 52, 24);
    DrawTier(painter, 15, 37, 19);
    DrawTier(painter, 2, 22, 13);
    return picture;
}

QIcon ProgramIcon() {
    QIcon icon;
    for (const int side : {16, 32, 64}) icon.addPixmap(TreePicture(side));
    return icon;
}

}  // namespace arbolith
