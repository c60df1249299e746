// A frame: a box with its caption on the edge, or without a caption just what it holds.
#include "qt/form_window.h"
#include "qt/texts.h"
#include "qt/views.h"

#include <QGroupBox>

namespace arbolith {

namespace {

template <class Base>
class FrameView : public Base, public View {
public:
    FrameView(Frame& frame, FormWindow& window)
        : Base(window.InsideOf(frame.Parent())), View(frame, window, this), frame_(frame) {}

    void Refresh() override {
        RefreshWidget();
        RefreshBackColor(QPalette::Window, QPalette::WindowText);
    }

protected:
    void mousePressEvent(QMouseEvent* event) override { PassMouse(*event); }
    void mouseReleaseEvent(QMouseEvent* event) override { PassMouse(*event); }
    void mouseDoubleClickEvent(QMouseEvent* event) override { PassMouse(*event); }

    Frame& frame_;
};

class CaptionFrameView final : public FrameView<QGroupBox> {
public:
    using FrameView::FrameView;

    void Refresh() override {
        const QString caption = ToQString(frame_.Caption());
        if (title() != caption) setTitle(caption);
        FrameView::Refresh();
    }
};

}  // namespace

View* MakeFrameView(Frame& frame, FormWindow& window) {
    if (frame.Caption().empty()) return new FrameView<QWidget>(frame, window);
    return new CaptionFrameView(frame, window);
}

}  // namespace arbolith
