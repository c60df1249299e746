// The picture of a start-up window: the program's tree over the caption.
#include "qt/form_window.h"
#include "qt/icon.h"
#include "qt/texts.h"
#include "qt/views.h"

#include <QPainter>

#include <algorithm>

namespace arbolith {

namespace {

// Shares of the picture's height: the tree, and the line of text under it.
constexpr double kTree = 0.5;
constexpr double kAboveTree = 0.12;
constexpr double kTextTop = 0.68;
constexpr double kTextHeight = 0.2;

const QColor kSky(0xF4, 0xF8, 0xF1);
const QColor kGround(0xD3, 0xE5, 0xC8);
const QColor kFrame(0x2A, 0x74, 0x3B);
const QColor kInk(0x1E, 0x33, 0x22);

class PictureView final : public QWidget, public View {
public:
    PictureView(Picture& picture, FormWindow& window)
        : QWidget(window.InsideOf(picture.Parent())),
          View(picture, window, this),
          picture_(picture) {}

    QAccessible::Role Role() const override { return QAccessible::Graphic; }

    void Refresh() override {
        caption_ = ToQString(picture_.Caption());
        RefreshWidget();
        update();
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        PaintGround(painter);
        const double ratio = devicePixelRatioF();
        const int side = static_cast<int>(height() * kTree);
        QPixmap tree = TreePicture(static_cast<int>(side * ratio));
        tree.setDevicePixelRatio(ratio);
        painter.drawPixmap((width() - side) / 2, static_cast<int>(height() * kAboveTree), tree);
        PaintCaption(painter);
    }

    void mousePressEvent(QMouseEvent* event) override { PassMouse(*event); }
    void mouseReleaseEvent(QMouseEvent* event) override { PassMouse(*event); }
    void mouseDoubleClickEvent(QMouseEvent* event) override { PassMouse(*event); }

private:
    void PaintGround(QPainter& painter) const {
        QLinearGradient ground(0, 0, 0, height());
        ground.setColorAt(0, kSky);
        ground.setColorAt(1, kGround);
        painter.fillRect(rect(), ground);
        painter.setPen(kFrame);
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }

    void PaintCaption(QPainter& painter) const {
        QFont large = font();
        large.setPointSizeF(large.pointSizeF() * 2);
        large.setBold(true);
        painter.setFont(large);
        painter.setPen(kInk);
        const QRectF line(0, height() * kTextTop, width(), height() * kTextHeight);
        painter.drawText(line, Qt::AlignCenter, caption_);
    }

    Picture& picture_;
    QString caption_;
};

}  // namespace

View* MakePictureView(Picture& picture, FormWindow& window) {
    return new PictureView(picture, window);
}

}  // namespace arbolith
