// What of a chart is drawn: its data as points, its scales and its texts, taken at one moment.
#pragma once

#include "forms/chart.h"

#include <QColor>
#include <QList>
#include <QPointF>
#include <QString>
#include <QStringList>

#include <vector>

namespace arbolith {

/// A data point by the numbers that the chart's event gives.
struct DataPoint {
    int series = 0;
    int point = 0;

    bool operator==(const DataPoint&) const = default;
};

struct PlotSeries {
    int number = 0;  ///< As the chart's event numbers it.
    QString name;
    /// In the order of the rows. Bars have the place of the row, from 0, as X.
    QList<QPointF> points;
};

/// Titles are empty, and pens none, for what isn't drawn.
struct Plot {
    bool hasBars = false;
    std::vector<PlotSeries> series;
    QStringList rowLabels;  ///< What stands under the bars.
    AxisScale x;            ///< Of bars: half a row around all of them.
    AxisScale y;
    QString title;
    ChartFont titleFont;
    QString xTitle;
    QString yTitle;
    ChartAxis xLines;  ///< Of these only the pens count.
    ChartAxis yLines;
    bool hasLegend = false;
    ChartFont legendFont;
    QColor backdrop;  ///< Invalid for none.
    bool hasWall = false;
    QColor barEdge;
};

Plot PlotOf(const Chart& chart);

/// The numbers at an axis's major divisions, from its lower end, each with the decimals that its
/// divisions need.
QStringList TickTexts(const AxisScale& scale);

/// What the plot shows, in words: its title, its axes from end to end, its series.
QString DescriptionOf(const Plot& plot);

/// What a data point says: its series, its value and what it stands over.
QString TextOf(const Plot& plot, DataPoint point);

}  // namespace arbolith
