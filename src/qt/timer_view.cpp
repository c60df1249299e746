// A timer. It runs from the form's first showing on, while it is enabled and has an interval.
#include "qt/form_window.h"
#include "qt/views.h"

#include <QTimer>

namespace arbolith {

namespace {

class TimerView final : public QTimer, public View {
public:
    TimerView(Timer& timer, FormWindow& window)
        : QTimer(&window), View(timer, window, nullptr), timer_(timer) {
        setTimerType(Qt::PreciseTimer);
        connect(this, &QTimer::timeout, this,
                [this] { Perform([this](UserActions& actions) { actions.Tick(timer_); }); });
    }

    void Refresh() override {
        const bool runs = timer_.Enabled() && timer_.Interval() > 0;
        if (!runs) {
            stop();
        } else if (!isActive() || interval() != timer_.Interval()) {
            start(timer_.Interval());
        }
    }

private:
    Timer& timer_;
};

}  // namespace

View* MakeTimerView(Timer& timer, FormWindow& window) {
    return new TimerView(timer, window);
}

}  // namespace arbolith
