#include "qt/chart_drawing.h"

#include "qt/drawn_chart.h"
#include "qt/qt_drawing.h"

#include <QGraphicsScene>
#include <QGuiApplication>
#include <QPainter>
#include <QScreen>

namespace arbolith {

namespace {

constexpr double kTwipsPerPixel = 15;
constexpr double kPixelsPerInch = 96;

// Texts in their told size on a sheet of 96 pixels to the inch, whatever the screen has.
double TextFactor() {
    return kPixelsPerInch / QGuiApplication::primaryScreen()->logicalDotsPerInchY();
}

class ChartDrawing : public QtDrawing {
public:
    ChartDrawing(const Chart& chart, Size size)
        : size_(size),
          sheet_(0, 0, size.width / kTwipsPerPixel, size.height / kTwipsPerPixel),
          scene_(std::make_unique<QGraphicsScene>(sheet_)) {
        auto* drawn = new DrawnChart(TextFactor());
        scene_->addItem(drawn);
        drawn->resize(sheet_.size());
        drawn->Draw(PlotOf(chart));
    }

    Size GetSize() const override { return size_; }

    void Paint(QPainter& painter, const QRectF& place) const override {
        painter.save();
        painter.setRenderHint(QPainter::Antialiasing);
        scene_->render(&painter, place, sheet_);
        painter.restore();
    }

private:
    Size size_;
    QRectF sheet_;
    std::unique_ptr<QGraphicsScene> scene_;
};

}  // namespace

std::shared_ptr<const Drawing> DrawChart(const Chart& chart, Size size) {
    return std::make_shared<ChartDrawing>(chart, size);
}

}  // namespace arbolith
