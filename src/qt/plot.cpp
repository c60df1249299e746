#include "qt/plot.h"

#include "platform/numbers.h"
#include "qt/texts.h"
#include "qt/view.h"

#include <algorithm>
#include <cmath>

namespace arbolith {

namespace {

constexpr int kMostDecimals = 9;
// From here on numbers are told with an exponent.
constexpr double kHuge = 1e9;

bool IsWhole(double value) {
    return std::abs(value - std::round(value)) < 1e-6;
}

// As few decimals as tell the divisions exactly, but no more than give three digits of a division.
int DecimalsOf(double start, double step) {
    const int most =
        std::clamp(static_cast<int>(std::ceil(2 - std::log10(step))), 0, kMostDecimals);
    double power = 1;
    for (int decimals = 0; decimals < most; ++decimals, power *= 10)
        if (IsWhole(start * power) && IsWhole(step * power) && step * power > 0.5) return decimals;
    return most;
}

QString NumberText(double value) {
    return ToQString(DefaultText(value));
}

void TakeScatter(const Chart& chart, Plot& plot) {
    for (int column = 1; column < chart.ColumnCount(); column += 2) {
        PlotSeries series{column, ToQString(chart.ColumnLabel(column + 1)), {}};
        series.points.reserve(chart.RowCount());
        for (int row = 1; row <= chart.RowCount(); ++row)
            series.points << QPointF(chart.Data(row, column), chart.Data(row, column + 1));
        plot.series.push_back(std::move(series));
    }
    plot.x = chart.DrawnScale(Chart::kAxisX);
}

void TakeBars(const Chart& chart, Plot& plot) {
    for (int column = 1; column <= chart.ColumnCount(); ++column) {
        PlotSeries series{column, ToQString(chart.ColumnLabel(column)), {}};
        series.points.reserve(chart.RowCount());
        for (int row = 1; row <= chart.RowCount(); ++row)
            series.points << QPointF(row - 1, chart.Data(row, column));
        plot.series.push_back(std::move(series));
    }
    for (int row = 1; row <= chart.RowCount(); ++row)
        plot.rowLabels << ToQString(chart.RowLabel(row));
    const int rows = std::max(1, chart.RowCount());
    plot.x = {-0.5, rows - 0.5, rows, 1};
}

QString RangeText(const AxisScale& scale) {
    return QStringLiteral(", %1 to %2")
        .arg(TickTexts(scale).constFirst(), TickTexts(scale).constLast());
}

}  // namespace

Plot PlotOf(const Chart& chart) {
    Plot plot;
    plot.hasBars = chart.chartType() == Chart::Type::kBar2d;
    plot.hasBars ? TakeBars(chart, plot) : TakeScatter(chart, plot);
    plot.y = chart.DrawnScale(Chart::kAxisY);
    plot.title = ToQString(chart.GetTitle().Text);
    plot.titleFont = chart.GetTitle().Font;
    plot.xLines = chart.Axis(Chart::kAxisX);
    plot.yLines = chart.Axis(Chart::kAxisY);
    plot.xTitle = ToQString(plot.xLines.Title);
    plot.yTitle = ToQString(plot.yLines.Title);
    plot.hasLegend = chart.Legend().Visible;
    plot.legendFont = chart.Legend().Font;
    const ChartDecoration& decoration = chart.Decoration();
    if (decoration.BackdropStyle == FillStyle::kBrush)
        plot.backdrop = ColourOf(decoration.BackdropColor);
    plot.hasWall = decoration.WallPen != PenStyle::kNone;
    plot.barEdge = ColourOf(decoration.SeriesEdge);
    return plot;
}

QStringList TickTexts(const AxisScale& scale) {
    const double step = (scale.maximum - scale.minimum) / scale.majorDivisions;
    const double furthest = std::max(std::abs(scale.minimum), std::abs(scale.maximum));
    const bool isPlain = furthest < kHuge && step > 1e-7;
    const int decimals = isPlain ? DecimalsOf(scale.minimum, step) : 0;
    QStringList texts;
    for (int i = 0; i <= scale.majorDivisions; ++i) {
        const double value = scale.minimum + i * step;
        // What is left of a subtraction that should have given 0.
        const double shown = std::abs(value) < step * 1e-6 ? 0 : value;
        texts << (isPlain ? QString::number(shown, 'f', decimals) : QString::number(shown, 'g', 6));
    }
    return texts;
}

QString DescriptionOf(const Plot& plot) {
    QStringList sentences;
    if (!plot.title.isEmpty()) sentences << plot.title;
    sentences << QStringLiteral("X axis: %1").arg(plot.xTitle);
    if (!plot.hasBars) sentences.back() += RangeText(plot.x);
    sentences << QStringLiteral("Y axis: %1").arg(plot.yTitle) + RangeText(plot.y);
    QStringList names;
    for (const PlotSeries& series : plot.series) names << series.name;
    sentences << (plot.hasBars ? QStringLiteral("Bars: ") : QStringLiteral("Lines: ")) +
                     names.join(QStringLiteral(", "));
    return sentences.join(QStringLiteral(". "));
}

QString TextOf(const Plot& plot, DataPoint point) {
    const auto series =
        std::find_if(plot.series.begin(), plot.series.end(),
                     [&](const PlotSeries& each) { return each.number == point.series; });
    const QPointF place = series->points[point.point - 1];
    const QString under = plot.hasBars ? plot.rowLabels[point.point - 1] : NumberText(place.x());
    return QStringLiteral("%1: %2\n%3: %4")
        .arg(series->name, NumberText(place.y()), plot.xTitle, under);
}

}  // namespace arbolith
