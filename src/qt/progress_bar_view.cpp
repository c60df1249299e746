// A bar that fills as work goes on.
#include "qt/form_window.h"
#include "qt/views.h"

#include <QProgressBar>

namespace arbolith {

namespace {

class ProgressBarView final : public QProgressBar, public View {
public:
    ProgressBarView(ProgressBar& bar, FormWindow& window)
        : QProgressBar(window.InsideOf(bar.Parent())), View(bar, window, this), bar_(bar) {
        setTextVisible(false);
    }

    void Refresh() override {
        if (maximum() != bar_.Max()) setRange(0, bar_.Max());
        if (const int whole = qRound(bar_.Value()); value() != whole) setValue(whole);
        RefreshWidget();
    }

private:
    ProgressBar& bar_;
};

}  // namespace

View* MakeProgressBarView(ProgressBar& bar, FormWindow& window) {
    return new ProgressBarView(bar, window);
}

}  // namespace arbolith
