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
    // What the frame has no use for goes on to the frame around it.
    void mousePressEvent(QMouseEvent* event) override {
        event->setAccepted(frame_.onClick || frame_.onDoubleClick);
    }
    void mouseReleaseEvent(QMouseEvent* event) override {
        if (event->button() == Qt::LeftButton && this->rect().contains(event->pos()))
            Perform([this](UserActions& actions) { actions.Click(frame_); });
    }
    void mouseDoubleClickEvent(QMouseEvent* event) override {
        mousePressEvent(event);
        if (event->button() == Qt::LeftButton && event->isAccepted())
            Perform([this](UserActions& actions) { actions.DoubleClick(frame_); });
    }

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
