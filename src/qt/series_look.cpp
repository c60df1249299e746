#include "qt/series_look.h"

#include <QPolygonF>
#include <QTransform>

#include <array>
#include <cmath>
#include <numbers>

namespace arbolith {

namespace {

// Dark enough on white, and far apart also for eyes that don't tell red from green; neighbours
// differ in lightness as well.
constexpr std::array<QRgb, 8> kColours = {0xFF0060A8, 0xFFD55E00, 0xFF1B8A3C, 0xFF000000,
                                          0xFFB8468C, 0xFF8A5A00, 0xFF2AA0C8, 0xFF6A3FB5};
constexpr int kColourCount = static_cast<int>(kColours.size());
// Every later round of the colours begins elsewhere, so that a shape comes back in another colour.
constexpr int kColourStep = 3;

// In widths of the line. 6 dashes and 8 shapes meet again only after 24 series.
const std::array<QList<qreal>, 6> kDashes = {
    {{}, {6, 2.5}, {1.5, 2}, {9, 2.5, 1.5, 2.5}, {12, 3}, {6, 2, 1.5, 2, 1.5, 2}}};
constexpr double kLineWidth = 1.6;

constexpr double kRadius = 3.6;
// A shape without an edge is larger by half of its width: filling alone is much faster than that
// and an edge.
constexpr double kWithoutEdge = (kRadius + 0.5) / kRadius;
constexpr int kShapes = 8;

QPainterPath Polygon(int corners, double radius, double turn) {
    QPolygonF polygon;
    for (int i = 0; i < corners; ++i) {
        const double angle = (turn + 360.0 * i / corners) * std::numbers::pi / 180;
        polygon << QPointF(radius * std::sin(angle), -radius * std::cos(angle));
    }
    QPainterPath path;
    path.addPolygon(polygon);
    path.closeSubpath();
    return path;
}

QPainterPath Cross(double turn) {
    constexpr double kArm = kRadius * 1.15;
    constexpr double kHalf = kRadius * 0.36;
    QPainterPath path;
    path.addRect(-kArm, -kHalf, 2 * kArm, 2 * kHalf);
    QPainterPath upright;
    upright.addRect(-kHalf, -kArm, 2 * kHalf, 2 * kArm);
    return QTransform().rotate(turn).map(path.united(upright));
}

QPainterPath Circle() {
    QPainterPath path;
    path.addEllipse(QPointF(0, 0), kRadius, kRadius);
    return path;
}

QPainterPath Shape(int shape) {
    switch (shape) {
        case 0:
            return Circle();
        case 1:
            return Polygon(4, kRadius * 1.3, 45);
        case 2:
            return Polygon(3, kRadius * 1.35, 0);
        case 3:
            return Polygon(4, kRadius * 1.35, 0);
        case 4:
            return Cross(0);
        case 5:
            return Polygon(3, kRadius * 1.35, 180);
        case 6:
            return Cross(45);
        default:
            return Polygon(5, kRadius * 1.25, 0);
    }
}

// Side by side a dark, a middle and a light one, so that few bars can be told apart on a print
// without colours. Every round of the colours begins with another lightness.
QColor BarColour(int series) {
    constexpr std::array<double, 3> kWhite = {0.0, 0.25, 0.7};
    const int inRound = series % kColourCount;
    const double white =
        kWhite[static_cast<std::size_t>(inRound + series / kColourCount) % kWhite.size()];
    const auto lit = [&](int channel) {
        return static_cast<int>(std::lround(channel + (255 - channel) * white));
    };
    const QColor colour = QColor::fromRgb(kColours[static_cast<std::size_t>(inRound)]);
    return {lit(colour.red()), lit(colour.green()), lit(colour.blue())};
}

}  // namespace

SeriesLook LookOfSeries(int series) {
    const int round = series / kColourCount;
    const QColor colour = QColor::fromRgb(
        kColours[static_cast<std::size_t>((series + round * kColourStep) % kColourCount)]);
    SeriesLook look;
    look.line = QPen(colour, kLineWidth, Qt::SolidLine, Qt::FlatCap, Qt::BevelJoin);
    const auto& dashes = kDashes[static_cast<std::size_t>(series) % kDashes.size()];
    if (!dashes.isEmpty()) look.line.setDashPattern(dashes);
    look.point = Shape(series % kShapes);
    // Empty shapes in every other round.
    if (round % 2 == 0) {
        look.point = QTransform::fromScale(kWithoutEdge, kWithoutEdge).map(look.point);
        look.pointFill = colour;
        look.pointEdge = Qt::NoPen;
    } else {
        look.pointFill = Qt::white;
        look.pointEdge = QPen(colour, 1);
    }
    look.barFill = BarColour(series);
    return look;
}

}  // namespace arbolith
