#include "notepad/icon.h"

#include "qt/icon.h"

#include <QPainter>

namespace arbolith::notepad {

namespace {

// The sheet is drawn on a field of this width and height.
constexpr double kField = 64;
const QColor kPaper(0xFC, 0xFB, 0xF5);
const QColor kEdge(0x7A, 0x7A, 0x72);
const QColor kInk(0x9A, 0xA4, 0xB0);

QPixmap SheetPicture(int side) {
    QPixmap picture(side, side);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(side / kField, side / kField);
    painter.setPen(QPen(kEdge, 2));
    painter.setBrush(kPaper);
    painter.drawRoundedRect(QRectF(9, 3, 46, 58), 3, 3);
    painter.setPen(QPen(kInk, 3));
    for (const int y : {15, 25, 35, 45}) painter.drawLine(17, y, y < 30 ? 47 : 29, y);
    constexpr int kTree = 34;
    painter.drawPixmap(QRectF(27, 28, kTree, kTree), TreePicture(side), QRectF(0, 0, side, side));
    return picture;
}

}  // namespace

QIcon NotepadIcon() {
    QIcon icon;
    for (const int side : {16, 32, 64}) icon.addPixmap(SheetPicture(side));
    return icon;
}

}  // namespace arbolith::notepad
