#include "qt/drawn_chart.h"

#include "qt/series_look.h"

#include <QBarSet>
#include <QGraphicsLayout>
#include <QGraphicsSceneResizeEvent>
#include <QLegend>
#include <QPainter>
#include <QPolygonF>
#include <QTransform>

#include <algorithm>
#include <cmath>
#include <utility>

namespace arbolith {

namespace {

// Above everything that the toolkit draws, and negative below it.
constexpr double kTopZ = 1000;
const QColor kAxisColour(0x40, 0x40, 0x40);
const QColor kGridColour(0x98, 0x98, 0x98);
// A row's share that its bars take.
constexpr double kBarWidth = 0.8;
// Bars that are narrower than this get a finer edge.
constexpr double kPlainBar = 6;
// Divisions nearer to each other than this are not drawn, in pixels.
constexpr double kNarrowest = 4;
constexpr double kMajorTick = 5;
constexpr double kMinorTick = 3;
// Between the shapes on a line that has many points, in pixels.
constexpr double kBetweenShapes = 16;
// A point farther outside the plot than this is not on it.
constexpr double kInside = 1;
constexpr double kArrow = 8;
// How far from a point a click still means it, and how much farther than the nearest one another
// lies as good as at the same place.
constexpr double kReach = 8;
constexpr double kSamePoint = 1;
constexpr double kSameBar = 0.5;

// Dots without caps, each on a pixel of its own where the line begins in the middle of one.
QPen DottedPen(const QColor& colour) {
    QPen pen(colour, 1, Qt::DotLine, Qt::FlatCap);
    pen.setDashOffset(0.5);
    return pen;
}

QPen PenOf(PenStyle style, const QColor& colour) {
    switch (style) {
        case PenStyle::kNone:
            return Qt::NoPen;
        case PenStyle::kDashed:
            return {colour, 1, Qt::DashLine};
        case PenStyle::kDotted:
            return DottedPen(colour);
        case PenStyle::kSolid:
            break;
    }
    return {colour, 1};
}

// Where a point lies that can't be shown: along an angle in degrees, from the right to the left
// hand.
QPainterPath Arrow(double angle) {
    QPainterPath arrow;
    arrow.addPolygon(QPolygonF({{0, 0}, {-kArrow, kArrow / 2}, {-kArrow, -kArrow / 2}, {0, 0}}));
    return QTransform().rotate(-angle).map(arrow);
}

double Distance(const QRectF& rect, QPointF place) {
    const double x = std::max({rect.left() - place.x(), 0.0, place.x() - rect.right()});
    const double y = std::max({rect.top() - place.y(), 0.0, place.y() - rect.bottom()});
    return std::hypot(x, y);
}

}  // namespace

// What is drawn here, below or above all that the toolkit draws.
class DrawnChart::Layer : public QGraphicsItem {
public:
    using Paint = void (DrawnChart::*)(QPainter&) const;

    Layer(DrawnChart& chart, double z, Paint draw)
        : QGraphicsItem(&chart), chart_(chart), painting_(draw) {
        setZValue(z);
        setAcceptedMouseButtons(Qt::NoButton);
    }
    QRectF boundingRect() const override { return chart_.rect(); }
    void paint(QPainter* painter, const QStyleOptionGraphicsItem*, QWidget*) override {
        (chart_.*painting_)(*painter);
    }
    void Changed() {
        prepareGeometryChange();
        update();
    }

private:
    DrawnChart& chart_;
    Paint painting_;
};

DrawnChart::DrawnChart(double textFactor)
    : textFactor_(textFactor),
      xAxis_(new QValueAxis(this)),
      yAxis_(new QValueAxis(this)),
      ground_(new Layer(*this, -kTopZ, &DrawnChart::PaintGround)),
      marks_(new Layer(*this, kTopZ, &DrawnChart::PaintMarks)) {
    // The toolkit's own ground doesn't follow the sheet while the plot has its place from here.
    setBackgroundVisible(false);
    layout()->setContentsMargins(0, 0, 0, 0);
    setMargins({});
    legend()->hide();
    for (QValueAxis* axis : {xAxis_, yAxis_}) {
        axis->setVisible(false);
        addAxis(axis, axis == xAxis_ ? Qt::AlignBottom : Qt::AlignLeft);
    }
}

void DrawnChart::Draw(Plot plot) {
    plot_ = std::move(plot);
    LayOutAnew();
    DrawData();
}

void DrawnChart::SetTextFactor(double factor) {
    if (textFactor_ == factor) return;
    textFactor_ = factor;
    LayOutAnew();
}

void DrawnChart::resizeEvent(QGraphicsSceneResizeEvent* event) {
    QChart::resizeEvent(event);
    LayOutAnew();
}

void DrawnChart::LayOutAnew() {
    layout_ = LayOut(plot_, size(), textFactor_);
    setPlotArea(layout_.plot);
    xAxis_->setRange(plot_.x.minimum, plot_.x.maximum);
    yAxis_->setRange(plot_.y.minimum, plot_.y.maximum);
    layout()->activate();
    if (plot_.hasBars && bars_ != nullptr) DrawBarEdges();
    PutTexts();
    ground_->Changed();
    marks_->Changed();
}

void DrawnChart::PutTexts() {
    texts_.resize(layout_.texts.size());
    for (std::size_t i = 0; i < texts_.size(); ++i) {
        auto& item = texts_[i];
        if (item == nullptr) item = std::make_unique<QGraphicsSimpleTextItem>(this);
        const PlacedText& placed = layout_.texts[i];
        item->setFont(placed.font);
        item->setText(placed.text);
        const QPointF middle = item->boundingRect().center();
        item->setTransformOriginPoint(middle);
        item->setRotation(placed.angle);
        item->setPos(placed.middle - middle);
    }
}

void DrawnChart::DrawData() {
    const bool isSame = plot_.hasBars ? bars_ != nullptr && lines_.empty()
                                      : bars_ == nullptr && lines_.size() == plot_.series.size();
    if (!isSame) {
        removeAllSeries();
        lines_.clear();
        bars_ = nullptr;
    }
    plot_.hasBars ? DrawBars() : DrawLines();
}

void DrawnChart::DrawLines() {
    while (lines_.size() < plot_.series.size()) {
        auto* line = new QLineSeries(this);
        line->setPen(LookOfSeries(static_cast<int>(lines_.size())).line);
        addSeries(line);
        line->attachAxis(xAxis_);
        line->attachAxis(yAxis_);
        lines_.push_back(line);
    }
    for (std::size_t i = 0; i < lines_.size(); ++i) lines_[i]->replace(plot_.series[i].points);
}

void DrawnChart::DrawBars() {
    if (bars_ == nullptr) {
        bars_ = new QBarSeries(this);
        bars_->setBarWidth(kBarWidth);
    } else {
        removeSeries(bars_);
        bars_->clear();
    }
    for (std::size_t i = 0; i < plot_.series.size(); ++i) {
        auto* bars = new QBarSet(plot_.series[i].name, bars_);
        for (const QPointF& point : plot_.series[i].points) *bars << point.y();
        bars->setBrush(LookOfSeries(static_cast<int>(i)).barFill);
        bars_->append(bars);
    }
    DrawBarEdges();
    addSeries(bars_);
    bars_->attachAxis(xAxis_);
    bars_->attachAxis(yAxis_);
}

void DrawnChart::DrawBarEdges() {
    const double width = plot_.series.empty() ? 0 : BarOf(0, 1).width();
    for (QBarSet* bars : bars_->barSets())
        bars->setPen(QPen(plot_.barEdge, std::min(1.0, width / kPlainBar)));
}

QPointF DrawnChart::Mapped(QPointF value) const {
    const auto share = [](double v, const AxisScale& scale) {
        return (v - scale.minimum) / (scale.maximum - scale.minimum);
    };
    const QRectF& plot = layout_.plot;
    return {plot.left() + share(value.x(), plot_.x) * plot.width(),
            plot.bottom() - share(value.y(), plot_.y) * plot.height()};
}

// The nearest place on the plot.
QPointF DrawnChart::InPlot(QPointF place) const {
    const QRectF& plot = layout_.plot;
    return {std::clamp(place.x(), plot.left(), plot.right()),
            std::clamp(place.y(), plot.top(), plot.bottom())};
}

// As the toolkit draws them: those of one row side by side.
QRectF DrawnChart::BarOf(std::size_t series, int row) const {
    const double value = plot_.series[series].points.value(row - 1).y();
    const double width = kBarWidth / static_cast<double>(plot_.series.size());
    const double left = row - 1 - kBarWidth / 2 + width * static_cast<double>(series);
    return QRectF(InPlot(Mapped({left, value})), InPlot(Mapped({left + width, 0}))).normalized();
}

void DrawnChart::PaintGround(QPainter& painter) const {
    if (plot_.backdrop.isValid()) painter.fillRect(rect(), plot_.backdrop);
    const QRectF& plot = layout_.plot;
    const QLineF right(plot.bottomLeft(), plot.bottomRight());
    const QLineF up(plot.bottomLeft(), plot.topLeft());
    PaintAxis(painter, right, up, plot_.x, plot_.xLines);
    PaintAxis(painter, up, right, plot_.y, plot_.yLines);
    painter.setPen(QPen(kAxisColour, 1));
    painter.drawPolyline(QPolygonF({plot.topLeft(), plot.bottomLeft(), plot.bottomRight()}));
    if (plot_.hasWall) painter.drawRect(plot);
}

// The lines of the grid and the ticks at an axis's divisions, without the axis itself. `across` is
// the other axis. The toolkit's own axes would not follow a plot that gets another size.
void DrawnChart::PaintAxis(QPainter& painter, const QLineF& axis, const QLineF& across,
                           const AxisScale& scale, const ChartAxis& lines) {
    const double length = axis.length();
    const int majors = length / scale.majorDivisions >= kNarrowest ? scale.majorDivisions : 1;
    const bool hasMinor = length / scale.majorDivisions / scale.minorDivisions >= kNarrowest;
    const int minors = hasMinor ? scale.minorDivisions : 1;
    for (int i = 0; i <= majors * minors; ++i) {
        const bool isMajor = i % minors == 0;
        // By whole pixels from the end, which lies in the middle of one.
        const double share = std::round(length * i / (majors * minors)) / std::max(length, 1.0);
        const QPointF along = axis.pointAt(share) - axis.p1();
        painter.setPen(PenOf(isMajor ? lines.MajorPen : lines.MinorPen, kGridColour));
        painter.drawLine(across.translated(along));
        QLineF tick = across.translated(along);
        tick.setLength(isMajor ? -kMajorTick : -kMinorTick);
        painter.setPen(QPen(kAxisColour, 1));
        painter.drawLine(tick);
    }
}

void DrawnChart::PaintMarks(QPainter& painter) const {
    painter.setRenderHint(QPainter::Antialiasing);
    plot_.hasBars ? PaintCutBars(painter) : PaintPoints(painter);
    PaintLegend(painter);
}

// A line with many points shows the shapes of some, so that its dashes are seen between them. Where
// a point lies outside the plot an arrow says so.
void DrawnChart::PaintPoints(QPainter& painter) const {
    for (std::size_t i = 0; i < plot_.series.size(); ++i) {
        const SeriesLook look = LookOfSeries(static_cast<int>(i));
        painter.setPen(look.pointEdge);
        painter.setBrush(look.pointFill);
        std::optional<QPointF> last;
        for (const QPointF& point : plot_.series[i].points) {
            const QPointF place = InPlot(Mapped(point));
            if (last && QLineF(*last, place).length() < kBetweenShapes) continue;
            last = place;
            const QLineF outwards(place, Mapped(point));
            painter.drawPath((outwards.length() < kInside ? look.point : Arrow(outwards.angle()))
                                 .translated(place));
        }
    }
}

// An arrow in the end of a bar that goes on beyond the plot.
void DrawnChart::PaintCutBars(QPainter& painter) const {
    painter.setPen(QPen(plot_.barEdge, 1));
    painter.setBrush(Qt::white);
    for (std::size_t i = 0; i < plot_.series.size(); ++i) {
        const double size = std::min(1.0, BarOf(i, 1).width() / kArrow);
        if (size * kArrow < kNarrowest) return;
        for (int row = 1; row <= plot_.series[i].points.size(); ++row) {
            const double value = plot_.series[i].points[row - 1].y();
            if (value >= plot_.y.minimum && value <= plot_.y.maximum) continue;
            const bool isUp = value > plot_.y.maximum;
            const QPointF end(BarOf(i, row).center().x(),
                              isUp ? layout_.plot.top() : layout_.plot.bottom());
            const QTransform sized = QTransform::fromScale(size, size);
            painter.drawPath(sized.map(Arrow(isUp ? 90 : -90)).translated(end));
        }
    }
}

void DrawnChart::PaintLegend(QPainter& painter) const {
    for (std::size_t i = 0; i < layout_.samples.size(); ++i) {
        const SeriesLook look = LookOfSeries(static_cast<int>(i));
        const QRectF& sample = layout_.samples[i];
        if (plot_.hasBars) {
            QRectF square(0, 0, sample.width() - 2, sample.width() - 2);
            square.moveCenter(sample.center());
            painter.setPen(QPen(plot_.barEdge, 1));
            painter.setBrush(look.barFill);
            painter.drawRect(square);
            continue;
        }
        painter.setPen(look.line);
        painter.drawLine(QPointF(sample.left(), sample.center().y()),
                         QPointF(sample.right(), sample.center().y()));
        painter.setPen(look.pointEdge);
        painter.setBrush(look.pointFill);
        painter.drawPath(look.point.translated(sample.center()));
    }
}

std::optional<QPointF> DrawnChart::PlaceOf(DataPoint point) const {
    for (std::size_t i = 0; i < plot_.series.size(); ++i) {
        const PlotSeries& series = plot_.series[i];
        if (series.number != point.series || point.point < 1 || point.point > series.points.size())
            continue;
        return plot_.hasBars ? BarOf(i, point.point).center()
                             : InPlot(Mapped(series.points[point.point - 1]));
    }
    return std::nullopt;
}

double DrawnChart::DistanceTo(std::size_t series, int row, QPointF place) const {
    if (plot_.hasBars) return Distance(BarOf(series, row), place);
    return QLineF(InPlot(Mapped(plot_.series[series].points[row - 1])), place).length();
}

std::vector<DataPoint> DrawnChart::PointsAt(QPointF place) const {
    std::vector<std::pair<double, DataPoint>> near;
    double nearest = kReach;
    for (std::size_t i = 0; i < plot_.series.size(); ++i) {
        const auto rows = static_cast<int>(plot_.series[i].points.size());
        for (int row = 1; row <= rows; ++row) {
            const double distance = DistanceTo(i, row, place);
            if (distance > kReach) continue;
            near.push_back({distance, {plot_.series[i].number, row}});
            nearest = std::min(nearest, distance);
        }
    }
    std::vector<DataPoint> points;
    const double farthest = nearest + (plot_.hasBars ? kSameBar : kSamePoint);
    for (const auto& [distance, point] : near)
        if (distance <= farthest) points.push_back(point);
    return points;
}

}  // namespace arbolith
