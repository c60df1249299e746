// Where the parts of a drawn chart stand: the plot, the texts around it, the legend.
#pragma once

#include "qt/plot.h"

#include <QFont>
#include <QRectF>
#include <QSizeF>
#include <QString>

#include <vector>

namespace arbolith {

/// A line of text: turned around its middle by an angle in degrees.
struct PlacedText {
    QString text;
    QFont font;
    QPointF middle;
    double angle = 0;
};

struct ChartLayout {
    QRectF plot;
    std::vector<PlacedText> texts;
    /// Beside the names in the legend, one for each series; empty without a legend.
    std::vector<QRectF> samples;
};

/// Lays a chart out on a sheet. `textFactor` is how much larger than its told points a text is to
/// be. On a sheet too small for all of it the legend goes first, then the titles.
ChartLayout LayOut(const Plot& plot, QSizeF sheet, double textFactor);

/// The text broken at blanks into as few lines as are no wider than told, where its words allow,
/// and these about equally long.
QStringList Wrapped(const QString& text, const QFont& font, double width);

}  // namespace arbolith
