// A chart as it is drawn, on a screen as well as on paper. The toolkit draws the lines and the
// bars; the axes with their grid, the points on the lines, the texts around the plot and the legend
// are drawn here.
#pragma once

#include "qt/chart_layout.h"
#include "qt/plot.h"

#include <QBarSeries>
#include <QChart>
#include <QGraphicsSimpleTextItem>
#include <QLineSeries>
#include <QValueAxis>

#include <memory>
#include <optional>
#include <vector>

namespace arbolith {

class DrawnChart : public QChart {
public:
    /// `textFactor` is how much larger than its told points a text is drawn.
    explicit DrawnChart(double textFactor);

    void Draw(Plot plot);
    void SetTextFactor(double factor);
    const Plot& Drawn() const { return plot_; }
    const ChartLayout& Layout() const { return layout_; }

    /// Where a data point is drawn, or the middle of its bar; the edge of the plot for one outside
    /// its scales, nothing for one that there isn't.
    std::optional<QPointF> PlaceOf(DataPoint point) const;
    /// The data points at a place, as far as a hand can tell: the nearest and those that lie as
    /// good as on it, in the order of the series.
    std::vector<DataPoint> PointsAt(QPointF place) const;

protected:
    void resizeEvent(QGraphicsSceneResizeEvent* event) override;

private:
    class Layer;

    void LayOutAnew();
    void PutTexts();
    void DrawData();
    void DrawLines();
    void DrawBars();
    void DrawBarEdges();
    void PaintGround(QPainter& painter) const;
    static void PaintAxis(QPainter& painter, const QLineF& axis, const QLineF& across,
                          const AxisScale& scale, const ChartAxis& lines);
    void PaintMarks(QPainter& painter) const;
    void PaintPoints(QPainter& painter) const;
    void PaintCutBars(QPainter& painter) const;
    void PaintLegend(QPainter& painter) const;
    QPointF Mapped(QPointF value) const;
    QPointF InPlot(QPointF place) const;
    QRectF BarOf(std::size_t series, int row) const;
    double DistanceTo(std::size_t series, int row, QPointF place) const;

    double textFactor_;
    Plot plot_;
    ChartLayout layout_;
    // Owned by the chart, as the toolkit wants it.
    QValueAxis* xAxis_;
    QValueAxis* yAxis_;
    std::vector<QLineSeries*> lines_;
    QBarSeries* bars_ = nullptr;
    Layer* ground_;
    Layer* marks_;
    std::vector<std::unique_ptr<QGraphicsSimpleTextItem>> texts_;
};

}  // namespace arbolith
