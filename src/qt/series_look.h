// How the series of a chart are told apart: by colour, by the shape of their points and by the
// dashes of their lines, so that no one of the three is needed. 24 series differ in shape and
// dashes alone.
#pragma once

#include <QBrush>
#include <QPainterPath>
#include <QPen>

namespace arbolith {

/// The look of a series by its place among the series, from 0.
struct SeriesLook {
    QPen line;
    /// The shape of a point around (0, 0).
    QPainterPath point;
    /// A point's inside and edge: all of the line's colour, or white with an edge of that colour.
    QBrush pointFill;
    QPen pointEdge;
    /// The inside of a bar.
    QBrush barFill;
};

SeriesLook LookOfSeries(int series);

}  // namespace arbolith
