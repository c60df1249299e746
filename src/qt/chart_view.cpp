#include "qt/chart_view.h"

#include "qt/form_window.h"
#include "qt/scale.h"
#include "qt/views.h"

#include <QMenu>
#include <QToolTip>

namespace arbolith {

namespace {

constexpr qsizetype kMostInTip = 8;

}  // namespace

ChartView::ChartView(Chart& chart, FormWindow& window)
    : ChartView(chart, window, new DrawnChart(Scale::FontFactor(window.font()))) {}

// The chart goes straight to the toolkit's view, which would else make one of its own and lose it.
ChartView::ChartView(Chart& chart, FormWindow& window, DrawnChart* drawn)
    : QChartView(drawn, window.InsideOf(chart.Parent())),
      View(chart, window, this),
      chart_(chart),
      drawn_(drawn) {
    setFrameShape(NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setRenderHint(QPainter::Antialiasing);
    setBackgroundBrush(Qt::NoBrush);
    viewport()->setAutoFillBackground(false);
    viewport()->setMouseTracking(true);
    parentWidget()->installEventFilter(this);
}

void ChartView::Refresh() {
    RefreshWidget();
    drawn_->SetTextFactor(Scale::FontFactor(Window().font()));
    drawn_->Draw(PlotOf(chart_));
    setAccessibleDescription(DescriptionOf(drawn_->Drawn()));
}

// A chart that is told larger than its window (as high as the screen, with a title bar above it) is
// drawn in what there is, so that nothing of it is cut off.
QRect ChartView::ShownPlace() const {
    return View::ShownPlace().intersected(parentWidget()->rect());
}

bool ChartView::eventFilter(QObject* watched, QEvent* event) {
    if (watched == parentWidget() && event->type() == QEvent::Resize && !Window().IsGone())
        setGeometry(ShownPlace());
    return QChartView::eventFilter(watched, event);
}

void ChartView::mousePressEvent(QMouseEvent* event) {
    event->accept();
}

void ChartView::mouseMoveEvent(QMouseEvent* event) {
    const auto points = drawn_->PointsAt(event->position());
    viewport()->setCursor(points.empty() ? Qt::ArrowCursor : Qt::PointingHandCursor);
    QToolTip::showText(event->globalPosition().toPoint(), TipOf(points), viewport());
}

void ChartView::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    const auto points = drawn_->PointsAt(event->position());
    if (points.size() == 1) Pick(points.front());
    if (points.size() > 1) AskWhich(points, event->globalPosition().toPoint());
}

void ChartView::mouseDoubleClickEvent(QMouseEvent* event) {
    event->accept();
}

void ChartView::leaveEvent(QEvent*) {
    QToolTip::hideText();
}

void ChartView::Pick(DataPoint point) {
    Perform([&](UserActions& actions) { actions.PickPoint(chart_, point.series, point.point); });
}

QString ChartView::LineOf(DataPoint point) const {
    return TextOf(drawn_->Drawn(), point).replace(u'\n', QStringLiteral(", "));
}

// A line for each of several points, as far as they are few enough to be read.
QString ChartView::TipOf(const std::vector<DataPoint>& points) const {
    if (points.size() == 1) return TextOf(drawn_->Drawn(), points.front());
    QStringList lines;
    for (const DataPoint point : points) {
        if (lines.size() == kMostInTip) break;
        lines << LineOf(point);
    }
    const auto left = static_cast<qsizetype>(points.size()) - lines.size();
    if (left > 0) lines << QStringLiteral("and %1 more").arg(left);
    return lines.join(u'\n');
}

void ChartView::AskWhich(const std::vector<DataPoint>& points, QPoint place) {
    QToolTip::hideText();
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (const DataPoint point : points) {
        QAction* entry = menu->addAction(LineOf(point), this, [this, point] { Pick(point); });
        entry->setObjectName(EntryNameOf(point));
    }
    menu->popup(place);
}

QString EntryNameOf(DataPoint point) {
    return QStringLiteral("%1,%2").arg(point.series).arg(point.point);
}

View* MakeChartView(Chart& chart, FormWindow& window) {
    return new ChartView(chart, window);
}

}  // namespace arbolith
