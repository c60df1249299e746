#include "generator/line_chart.h"

#include <algorithm>
#include <cmath>

namespace arbolith::help {

namespace {

constexpr double kLeft = 62;
constexpr double kTop = 14;
constexpr double kBottom = 48;
constexpr double kBesideLine = 6;

/// Draws one chart.
class Drawer {
public:
    Drawer(const LineChart& chart, QPainter& painter, QSizeF area)
        : chart_(chart), painter_(painter), area_(area), yMax_(TopOf(chart)) {
        double widest = 0;
        for (const auto& line : chart.lines)
            widest = std::max(widest, painter.fontMetrics().horizontalAdvance(line.label) * 1.0);
        plot_ = QRectF(kLeft, kTop, area.width() - kLeft - widest - 2 * kBesideLine,
                       area.height() - kTop - kBottom);
    }

    void Draw() {
        painter_.fillRect(QRectF({0, 0}, area_), Qt::white);
        DrawGrid();
        for (const auto& line : chart_.lines) DrawLine(line);
        DrawLabels();
        DrawTitles();
    }

private:
    static double TopOf(const LineChart& chart) {
        double highest = 0;
        for (const auto& line : chart.lines)
            for (const QPointF& point : line.points) highest = std::max(highest, point.y());
        return std::ceil(highest / chart.yStep) * chart.yStep;
    }

    QPointF At(double x, double y) const {
        return {plot_.left() + x / chart_.xMax * plot_.width(),
                plot_.bottom() - y / yMax_ * plot_.height()};
    }

    double LineHeight() const { return painter_.fontMetrics().height(); }

    void DrawText(const QRectF& place, Qt::Alignment alignment, const QString& text) {
        painter_.setPen(kChartText);
        painter_.drawText(place, static_cast<int>(alignment), text);
    }

    void DrawGrid() {
        const double half = LineHeight();
        for (double x = 0; x <= chart_.xMax; x += chart_.xStep) {
            painter_.setPen(kChartGrid);
            painter_.drawLine(At(x, 0), At(x, yMax_));
            const QPointF foot = At(x, 0);
            DrawText(QRectF(foot.x() - 30, foot.y() + 4, 60, half), Qt::AlignCenter,
                     QString::number(x));
        }
        for (double y = 0; y <= yMax_; y += chart_.yStep) {
            painter_.setPen(kChartGrid);
            painter_.drawLine(At(0, y), At(chart_.xMax, y));
            const QPointF foot = At(0, y);
            DrawText(QRectF(0, foot.y() - half, foot.x() - kBesideLine, 2 * half),
                     Qt::AlignRight | Qt::AlignVCenter, QString::number(y));
        }
    }

    void DrawLine(const ChartLine& line) {
        QPolygonF polygon;
        for (const QPointF& point : line.points) polygon << At(point.x(), point.y());
        painter_.setPen(QPen(line.colour, 1.6));
        painter_.drawPolyline(polygon);
    }

    // Labels keep a line's distance from each other, from the highest down.
    void DrawLabels() {
        std::vector<const ChartLine*> byHeight;
        for (const auto& line : chart_.lines) byHeight.push_back(&line);
        std::sort(byHeight.begin(), byHeight.end(), [](const auto* a, const auto* b) {
            return a->points.back().y() > b->points.back().y();
        });
        const double height = LineHeight();
        double lowestTop = 0;
        for (const ChartLine* line : byHeight) {
            const QPointF end = At(line->points.back().x(), line->points.back().y());
            const double top = std::max(end.y() - height / 2, lowestTop);
            painter_.setPen(line->colour);
            painter_.drawText(QRectF(end.x() + kBesideLine, top, area_.width(), height),
                              Qt::AlignLeft | Qt::AlignVCenter, line->label);
            lowestTop = top + height * 0.9;
        }
    }

    void DrawTitles() {
        const double height = LineHeight();
        DrawText(QRectF(plot_.left(), area_.height() - height - 4, plot_.width(), height),
                 Qt::AlignCenter, chart_.xTitle);
        painter_.save();
        painter_.rotate(-90);
        DrawText(QRectF(-plot_.bottom(), 4, plot_.height(), height), Qt::AlignCenter,
                 chart_.yTitle);
        painter_.restore();
    }

    const LineChart& chart_;
    QPainter& painter_;
    QSizeF area_;
    double yMax_;
    QRectF plot_;
};

}  // namespace

void LineChart::Draw(QPainter& painter, QSizeF area) const {
    Drawer(*this, painter, area).Draw();
}

}  // namespace arbolith::help
