// A chart of lines on paper or on a picture.
#pragma once

#include <QColor>
#include <QPainter>
#include <QPointF>
#include <QString>

#include <vector>

namespace arbolith::help {

inline const QColor kChartGrid(0xD0, 0xD4, 0xD0);
inline const QColor kChartText(0x20, 0x24, 0x20);

struct ChartLine {
    QString label;  ///< Stands at the line's right end.
    QColor colour;
    std::vector<QPointF> points;  ///< In the order of x.
};

/// Lines over a common x, both axes from 0.
struct LineChart {
    QString xTitle;
    QString yTitle;
    double xMax = 0;
    double xStep = 0;  ///< Between two grid lines.
    double yStep = 0;
    std::vector<ChartLine> lines;

    /// Draws it with all that belongs to it into an area from (0, 0).
    void Draw(QPainter& painter, QSizeF area) const;
};

}  // namespace arbolith::help
