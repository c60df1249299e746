#include "notepad/font.h"

namespace arbolith::notepad {

QFont TextFont(double points) {
    QFont font(QStringLiteral("DejaVu Sans Mono"));
    font.setStyleHint(QFont::Monospace);
    font.setFixedPitch(true);
    font.setPointSizeF(points);
    return font;
}

}  // namespace arbolith::notepad
