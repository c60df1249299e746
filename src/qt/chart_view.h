// The chart in its window. A click on a point picks it, and the mouse over one shows what it says.
#pragma once

#include "qt/drawn_chart.h"
#include "qt/view.h"

#include <QChartView>

namespace arbolith {

class ChartView final : public QChartView, public View {
public:
    ChartView(Chart& chart, FormWindow& window);

    QAccessible::Role Role() const override { return QAccessible::Chart; }
    void Refresh() override;

    const DrawnChart& Drawn() const { return *drawn_; }

protected:
    QRect ShownPlace() const override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    ChartView(Chart& chart, FormWindow& window, DrawnChart* drawn);
    void Pick(DataPoint point);
    QString LineOf(DataPoint point) const;
    QString TipOf(const std::vector<DataPoint>& points) const;
    void AskWhich(const std::vector<DataPoint>& points, QPoint place);

    Chart& chart_;
    DrawnChart* drawn_;
};

/// The name of the menu entry for a data point, where several lie at one place.
QString EntryNameOf(DataPoint point);

}  // namespace arbolith
