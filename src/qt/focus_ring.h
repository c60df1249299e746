// The mark of the keyboard focus, for views whose style draws none or one that is hardly seen.
#pragma once

#include <QPalette>
#include <QWidget>

namespace arbolith {

/// Draws the mark along the edge of a place in a widget, in a colour of the widget's palette. To be
/// called while the widget paints, behind all else.
void PaintFocusRing(QWidget& widget, const QRect& place,
                    QPalette::ColorRole colour = QPalette::Highlight);

}  // namespace arbolith
